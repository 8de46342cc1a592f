#pragma once

#include <json/json.h>

#include <string>

namespace rule_editor {

/* False when `text` is no JSON; `problem` then says why. */
bool parseJson(const std::string& text, Json::Value& json, std::string& problem);

/* The value as it stands at `key`; null when `json` is no object or has no such member. */
Json::Value member(const Json::Value& json, const char* key);

} // namespace rule_editor
