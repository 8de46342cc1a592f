#include "rules/json.hpp"

#include <memory>

namespace rule_editor {

namespace {

/* Deeper nesting than anything read here has; the reader would take a lot of stack for more. */
constexpr int STACK_LIMIT = 100;

} // namespace

bool parseJson(const std::string& text, Json::Value& json, std::string& problem) {
    Json::CharReaderBuilder builder;
    builder["stackLimit"] = STACK_LIMIT;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    try {
        return reader->parse(text.c_str(), text.c_str() + text.size(), &json, &problem);
    } catch (const Json::Exception& error) {
        problem = error.what();
        return false;
    }
}

Json::Value member(const Json::Value& json, const char* key) {
    return json.isObject() ? json[key] : Json::Value();
}

} // namespace rule_editor
