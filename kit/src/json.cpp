#include "json.hpp"

#include <memory>

namespace rulecanvas::kit {

namespace {

/// Deeper nesting than anything read here has; the reader would take a lot of stack for more.
constexpr int DeepestNesting = 100;

std::string Write(const Json::Value& json, const char* indentation) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = indentation;
    builder["commentStyle"] = "None";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, json);
}

} // namespace

std::optional<Json::Value> ParseJson(const std::string& text, std::string& problem) {
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    builder["stackLimit"] = DeepestNesting;
    builder["rejectDupKeys"] = true;
    builder["failIfExtra"] = true;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value json;
    try {
        if (reader->parse(text.c_str(), text.c_str() + text.size(), &json, &problem)) {
            return json;
        }
    } catch (const Json::Exception& error) {
        problem = error.what();
    }
    return std::nullopt;
}

Json::Value ParseObject(const std::string& text) {
    std::string problem;
    std::optional<Json::Value> json = ParseJson(text, problem);
    return json && json->isObject() ? *json : Json::Value(Json::objectValue);
}

std::string CompactJson(const Json::Value& json) {
    return Write(json, "");
}

std::string IndentedJson(const Json::Value& json) {
    return Write(json, "  ");
}

const Json::Value& Member(const Json::Value& json, const std::string& key) {
    return json.isObject() ? json[key] : Json::Value::nullSingleton();
}

std::optional<int32_t> WholeNumber(const Json::Value& json) {
    return json.type() == Json::intValue && json.isInt() ? std::optional<int32_t>(json.asInt()) : std::nullopt;
}

} // namespace rulecanvas::kit
