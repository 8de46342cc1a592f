#include "script/input.hpp"

#include <cctype>
#include <map>
#include <stdexcept>

namespace rule_editor {

namespace {

WPARAM KeyNamed(const std::string& name) {
    static const std::map<std::string, WPARAM> keys = {
        {"escape", VK_ESCAPE}, {"enter", VK_RETURN}, {"backspace", VK_BACK}, {"delete", VK_DELETE}, {"tab", VK_TAB},
        {"left", VK_LEFT},     {"right", VK_RIGHT},  {"up", VK_UP},          {"down", VK_DOWN}};
    const auto found = keys.find(name);
    if (found != keys.end()) {
        return found->second;
    }
    if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0])) != 0) {
        return static_cast<WPARAM>(std::toupper(static_cast<unsigned char>(name[0])));
    }
    throw std::runtime_error("there is no key " + name);
}

void HoldDown(int key, bool down) {
    BYTE state[256] = {};
    GetKeyboardState(state);
    state[key] = down ? 0x80 : 0;
    SetKeyboardState(state);
}

} // namespace

void PostMouse(HWND window, UINT message, int x, int y, WPARAM marks) {
    PostMessageW(window, message, marks, MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y)));
}

void PostClick(HWND window, POINT at, WPARAM marks, bool twice) {
    PostMouse(window, WM_LBUTTONDOWN, at.x, at.y, marks | MK_LBUTTON);
    PostMouse(window, WM_LBUTTONUP, at.x, at.y, marks);
    if (twice) {
        PostMouse(window, WM_LBUTTONDBLCLK, at.x, at.y, marks | MK_LBUTTON);
        PostMouse(window, WM_LBUTTONUP, at.x, at.y, marks);
    }
}

void PostKey(const std::string& name, HWND otherwise) {
    const size_t plus = name.find('+');
    const std::string held = plus != std::string::npos ? name.substr(0, plus) : "";
    const WPARAM key = KeyNamed(plus != std::string::npos ? name.substr(plus + 1) : name);
    HoldDown(VK_CONTROL, held == "ctrl");
    HoldDown(VK_SHIFT, held == "shift");
    PostMessageW(GetFocus() != nullptr ? GetFocus() : otherwise, WM_KEYDOWN, key, 0);
}

void ReleaseKeys() {
    HoldDown(VK_CONTROL, false);
    HoldDown(VK_SHIFT, false);
}

} // namespace rule_editor
