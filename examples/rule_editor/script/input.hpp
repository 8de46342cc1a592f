#pragma once

#include <windows.h>

#include <string>

namespace rule_editor {

/// Input as window messages, which go through the ordinary message loop.
void PostMouse(HWND window, UINT message, int x, int y, WPARAM marks);
/// A press and a release of the left button; with `twice` a double click.
void PostClick(HWND window, POINT at, WPARAM marks, bool twice);
/// "escape", "ctrl+z", "shift+left": to the window with the focus. What is held down stays so until ReleaseKeys.
/// Throws std::runtime_error for a key without name.
void PostKey(const std::string& name, HWND otherwise);
void ReleaseKeys();

} // namespace rule_editor
