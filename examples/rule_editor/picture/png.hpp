#pragma once

#include "picture/frame.hpp"

#include <string>

namespace rule_editor {

/* Throws std::runtime_error when the file cannot be written. */
void writePng(const Frame& frame, const std::wstring& path);

} // namespace rule_editor
