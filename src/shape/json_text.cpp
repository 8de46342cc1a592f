#include "shape/json_text.h"

#include "platform/platform.h"

#include <json/reader.h>
#include <json/writer.h>

#include <cstring>

namespace rulecanvas {
namespace {

constexpr int DeepestNesting = 100;

/// Reading a number switches the locale of the whole process for a moment: one thread at a time.
platform::Mutex& ParserMutex() {
    static platform::Mutex mutex;
    return mutex;
}

Json::CharReaderBuilder MakeReaderBuilder() {
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    builder["allowTrailingCommas"] = false;
    builder["skipBom"] = false;
    builder["stackLimit"] = DeepestNesting;
    return builder;
}

Json::StreamWriterBuilder MakeWriterBuilder() {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return builder;
}

} // namespace

bool ParseJson(const char* text, Json::Value& root) {
    static const Json::CharReaderBuilder builder = MakeReaderBuilder();
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    platform::LockGuard guard(ParserMutex());
    Json::Value parsed;
    try {
        if (!reader->parse(text, text + std::strlen(text), &parsed, nullptr)) {
            return false;
        }
    } catch (const Json::Exception&) {
        return false; // nested too deeply
    }
    root.swap(parsed);
    return true;
}

std::string WriteJson(const Json::Value& value) {
    static const Json::StreamWriterBuilder builder = MakeWriterBuilder();
    return Json::writeString(builder, value) + "\n";
}

const Json::Value& MemberOf(const Json::Value& root, const std::string& key) {
    return root.isObject() ? root[key] : Json::Value::nullSingleton();
}

bool IsArrayOf(const Json::Value& value, unsigned count) {
    return value.isArray() && value.size() == count;
}

bool IsPlainInteger(const Json::Value& value) {
    return value.type() == Json::intValue && value.isInt();
}

bool CopyText(const std::string& text, char* buffer, int size) {
    if (buffer == nullptr || size < 0 || static_cast<size_t>(size) < text.size() + 1) {
        return false;
    }
    buffer[text.copy(buffer, text.size())] = '\0';
    return true;
}

bool CopyTextUncounted(const std::string& text, char* buffer, int size) {
    if (buffer != nullptr && size >= 0 && static_cast<size_t>(size) == text.size()) {
        text.copy(buffer, text.size());
        return true;
    }
    return CopyText(text, buffer, size);
}

bool CopyLine(const std::string& text, char* buffer, int size) {
    return CopyText(text.substr(0, text.rfind('\n')), buffer, size);
}

} // namespace rulecanvas
