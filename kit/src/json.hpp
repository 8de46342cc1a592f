/// JSON as the kit reads and writes it. Nothing throws.
#ifndef RULECANVAS_KIT_JSON_HPP
#define RULECANVAS_KIT_JSON_HPP

#include <json/json.h>

#include <optional>
#include <string>

namespace rulecanvas::kit {

/// Empty when `text` is no JSON; `problem` then says why.
std::optional<Json::Value> ParseJson(const std::string& text, std::string& problem);
/// An object without members when `text` is no JSON object.
Json::Value ParseObject(const std::string& text);

/// One line without line feed, bytes from 0x80 up unchanged: as the library writes it.
std::string CompactJson(const Json::Value& json);
std::string IndentedJson(const Json::Value& json);

/// Null when `json` is no object or has no such member.
const Json::Value& Member(const Json::Value& json, const std::string& key);
std::optional<int32_t> WholeNumber(const Json::Value& json);

} // namespace rulecanvas::kit

#endif
