#pragma once

#include "video/frame.hpp"

#include <windows.h>

#include <string>

namespace rule_editor {

/// Throws std::runtime_error when the file cannot be written.
void WritePng(const Frame& frame, const std::wstring& path);

/// What a window shows in its client area, its controls included.
Frame Screenshot(HWND window);

} // namespace rule_editor
