#pragma once

#include <windows.h>

namespace rule_editor {

/// Moves any number of child windows at one go, so that none is painted at a place that it is about to leave.
class Layout {
  public:
    Layout() : batch(BeginDeferWindowPos(MostChildren)) {}
    ~Layout() {
        if (batch != nullptr) {
            EndDeferWindowPos(batch);
        }
    }
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

    /// Nothing of the old picture is kept: it would be of another size.
    void Move(HWND child, const RECT& area) {
        const int width = area.right > area.left ? area.right - area.left : 0;
        const int height = area.bottom > area.top ? area.bottom - area.top : 0;
        if (batch != nullptr) {
            batch = DeferWindowPos(batch, child, nullptr, area.left, area.top, width, height,
                                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        }
    }

  private:
    static constexpr int MostChildren = 32;

    HDWP batch;
};

/// Makes a child control of a window, in the font.
inline HWND MakeControl(HWND parent, const wchar_t* kind, const wchar_t* text, DWORD style, WORD id, HFONT font) {
    const HWND control =
        CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}

} // namespace rule_editor
