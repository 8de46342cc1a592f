#include "shape/json_text.h"

#include "platform/platform.h"

#include <json/reader.h>
#include <json/writer.h>

#include <algorithm>
#include <cstring>
#include <sstream>

namespace rulecanvas {
namespace {

constexpr int DeepestNesting = 100;

std::unique_ptr<Json::CharReader> MakeReader() {
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    builder["allowTrailingCommas"] = false;
    builder["skipBom"] = false;
    builder["stackLimit"] = DeepestNesting;
    return std::unique_ptr<Json::CharReader>(builder.newCharReader());
}

std::unique_ptr<Json::StreamWriter> MakeWriter() {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return std::unique_ptr<Json::StreamWriter>(builder.newStreamWriter());
}

} // namespace

/// One reader for all, one thread at a time: reading a number switches the locale of the whole process for a moment.
bool ParseJson(const char* text, Json::Value& root, std::string* why) {
    static platform::ContainerMutex mutex;
    static const std::unique_ptr<Json::CharReader> reader = MakeReader();
    Json::Value parsed;
    try {
        LockGuard guard(mutex);
        if (!reader->parse(text, text + std::strlen(text), &parsed, why)) {
            return false;
        }
    } catch (const Json::Exception& nestedTooDeeply) {
        if (why != nullptr) {
            *why = nestedTooDeeply.what();
        }
        return false;
    }
    root.swap(parsed);
    return true;
}

/// One writer for all, one thread at a time: making one takes longer than using it.
std::string WriteJson(const Json::Value& value) {
    static platform::ContainerMutex mutex;
    static const std::unique_ptr<Json::StreamWriter> writer = MakeWriter();
    std::ostringstream out;
    out.exceptions(std::ios::badbit); // a text that memory did not suffice for must not pass for a whole one
    LockGuard guard(mutex);
    writer->write(value, &out);
    out << '\n';
    return out.str();
}

bool CopyText(const std::string& text, CopyRule rule, char* buffer, int size) {
    const size_t length = rule == CopyRule::Line ? text.rfind('\n') : text.size();
    const auto room = static_cast<size_t>(std::max(size, 0));
    const bool isTerminated = room > length;
    const bool fits = isTerminated || (rule == CopyRule::ZeroUncounted && room == length);
    if (buffer == nullptr || !fits) {
        return false;
    }
    text.copy(buffer, length);
    if (isTerminated) {
        buffer[length] = '\0';
    }
    return true;
}

} // namespace rulecanvas
