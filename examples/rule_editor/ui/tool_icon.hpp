#pragma once

#include <windows.h>

#include <string>

namespace rule_editor {

/// Draws a small picture of what a type draws, filling `area` with the background. Unknown types have an empty one.
void DrawToolIcon(HDC context, const RECT& area, const std::string& type, COLORREF background, COLORREF ink);

} // namespace rule_editor
