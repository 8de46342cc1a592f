#pragma once

#include <json/value.h>

#include <string>

namespace rulecanvas {

/// Parses one JSON document; what follows the root is ignored. False, with `root` unchanged, for a text that is not
/// JSON or is nested beyond reason.
bool ParseJson(const char* text, Json::Value& root);

/// One compact line with keys in ascending order and a line feed at the end; bytes from 0x80 up stay as they are.
std::string WriteJson(const Json::Value& value);

/// The member, or null when the root is not an object or has none of that name.
const Json::Value& MemberOf(const Json::Value& root, const std::string& key);

bool IsArrayOf(const Json::Value& value, unsigned count);

/// Numbers with a fraction or an exponent are not integers here, even when their value is whole.
bool IsPlainInteger(const Json::Value& value);

/// Copies the text with its terminating zero, when all of it fits.
bool CopyText(const std::string& text, char* buffer, int size);

/// Copies the text when it fits, the terminating zero not counted: a buffer of exactly the text's length goes without
/// one.
bool CopyTextUncounted(const std::string& text, char* buffer, int size);

/// Copies the text without its final line feed, with its terminating zero, when all of it fits.
bool CopyLine(const std::string& text, char* buffer, int size);

} // namespace rulecanvas
