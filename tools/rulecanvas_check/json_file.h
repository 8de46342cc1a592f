#pragma once

#include <json/value.h>

#include <string>

namespace rulecanvas::check {

/// The bytes of a file. False when it cannot be read.
bool ReadFile(const std::string& path, std::string& bytes);

/// Parses one JSON document that fills the whole text. Empty, or what is wrong with it in one line.
std::string ParseJson(const std::string& text, Json::Value& root);

/// One line without a line feed; bytes from 0x80 up stay as they are.
std::string WriteJson(const Json::Value& value);

} // namespace rulecanvas::check
