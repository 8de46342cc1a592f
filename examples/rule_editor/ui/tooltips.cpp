#include "ui/tooltips.hpp"

#include <commctrl.h>

namespace rule_editor {

namespace {

constexpr int WidestLine = 420;

} // namespace

Tooltips::Tooltips(HWND parent) {
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    window = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
                             parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(window, TTM_SETMAXTIPWIDTH, 0, WidestLine);
}

void Tooltips::Add(HWND control, const wchar_t* text) const {
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = const_cast<wchar_t*>(text);
    SendMessageW(window, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace rule_editor
