#pragma once

#include <string>

namespace rule_editor {

/* The program's texts are UTF-8; Windows takes UTF-16. Bytes that are not UTF-8 are read in the system's code page. */
std::wstring toWide(const std::string& bytes);
std::string toUtf8(const std::wstring& text);

} // namespace rule_editor
