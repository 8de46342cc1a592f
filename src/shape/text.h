#pragma once

#include <cstring>

namespace rulecanvas {

inline bool IsEmpty(const char* text) {
    return text == nullptr || *text == '\0';
}

inline const char* TextOrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

/// Mode words are compared whole: two words in one text are neither.
inline bool IsWord(const char* text, const char* word) {
    return text != nullptr && std::strcmp(text, word) == 0;
}

} // namespace rulecanvas
