#include "json_file.h"

#include <json/reader.h>
#include <json/writer.h>

#include <array>
#include <cstdio>
#include <memory>

namespace rulecanvas::check {
namespace {

/// Deeper than any rules file, and far from the end of the stack.
constexpr int DeepestNesting = 100;

/// JsonCpp writes "* Line 1, Column 2" and the error on lines of their own.
std::string OneLine(const std::string& text) {
    std::string line;
    for (const char c : text) {
        const bool blank = c == '\n' || c == ' ' || c == '*';
        if (!blank || (!line.empty() && line.back() != ' ')) {
            line += blank ? ' ' : c;
        }
    }
    while (!line.empty() && line.back() == ' ') {
        line.pop_back();
    }
    return line;
}

} // namespace

bool ReadFile(const std::string& path, std::string& bytes) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file) {
        return false;
    }
    std::array<char, 4096> part{};
    bytes.clear();
    while (const size_t count = std::fread(part.data(), 1, part.size(), file.get())) {
        bytes.append(part.data(), count);
    }
    return std::ferror(file.get()) == 0;
}

std::string ParseJson(const std::string& text, Json::Value& root) {
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    builder["strictRoot"] = false;
    builder["stackLimit"] = DeepestNesting;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string errors;
    try {
        if (reader->parse(text.data(), text.data() + text.size(), &root, &errors)) {
            return std::string();
        }
    } catch (const Json::Exception&) {
        errors = "nested too deeply";
    }
    return "not JSON: " + OneLine(errors);
}

std::string WriteJson(const Json::Value& value) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, value);
}

} // namespace rulecanvas::check
