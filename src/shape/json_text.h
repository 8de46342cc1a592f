#pragma once

#include <json/value.h>

#include <string>

namespace rulecanvas {

/// Parses one JSON document; what follows the root is ignored. False, with `root` unchanged and `why` filled if it is
/// given, for a text that is not JSON or is nested beyond reason.
bool ParseJson(const char* text, Json::Value& root, std::string* why = nullptr);

/// One compact line with keys in ascending order and a line feed at the end; bytes from 0x80 up stay as they are.
std::string WriteJson(const Json::Value& value);

/// The member, or null when the root is not an object or has none of that name.
inline const Json::Value& MemberOf(const Json::Value& root, const std::string& key) {
    return root.isObject() ? root[key] : Json::Value::nullSingleton();
}

inline bool IsArrayOf(const Json::Value& value, unsigned count) {
    return value.isArray() && value.size() == count;
}

/// Numbers with a fraction or an exponent are not integers here, even when their value is whole.
inline bool IsPlainInteger(const Json::Value& value) {
    return value.type() == Json::intValue && value.isInt();
}

/// How a text goes into a buffer of the host. Each only when all of it fits; else the buffer is left untouched.
enum class CopyRule {
    /// With its terminating zero, for which there must be room.
    Terminated,
    /// The same, but a buffer of exactly the text's length takes it without a terminating zero.
    ZeroUncounted,
    /// Without its final line feed, and with its terminating zero.
    Line,
};

bool CopyText(const std::string& text, CopyRule rule, char* buffer, int size);

} // namespace rulecanvas
