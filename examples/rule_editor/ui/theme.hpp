#pragma once

#include <windows.h>

#include <string>

namespace rule_editor {

/* Colours and fonts of the program's own controls. */
class Theme {
  public:
    Theme();
    ~Theme();
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    HFONT text() const { return m_text; }
    HFONT strong() const { return m_strong; }
    HFONT smallText() const { return m_small; }
    HBRUSH window() const { return m_window; }
    HBRUSH panel() const { return m_panel; }

    void fill(HDC context, const RECT& area, COLORREF colour) const;
    void frame(HDC context, const RECT& area, COLORREF colour) const;
    /* One line, cut with an ellipsis where it does not fit. */
    void write(HDC context, RECT area, const std::wstring& line, HFONT font, COLORREF colour, UINT alignment) const;
    int widthOf(HDC context, const std::wstring& line, HFONT font) const;
    void drawButton(const DRAWITEMSTRUCT& item, const std::wstring& caption) const;

    static constexpr COLORREF WINDOW = RGB(0xEC, 0xEF, 0xF3);
    static constexpr COLORREF PANEL = RGB(0xFF, 0xFF, 0xFF);
    static constexpr COLORREF BORDER = RGB(0xC9, 0xD0, 0xD9);
    static constexpr COLORREF INK = RGB(0x1F, 0x29, 0x33);
    static constexpr COLORREF FAINT = RGB(0x76, 0x82, 0x8F);
    static constexpr COLORREF ACCENT = RGB(0x1F, 0x6F, 0xD6);
    static constexpr COLORREF CHOSEN = RGB(0xD8, 0xE8, 0xFC);
    static constexpr COLORREF PRESSED = RGB(0xDD, 0xE3, 0xEA);

  private:
    HFONT m_text;
    HFONT m_strong;
    HFONT m_small;
    HBRUSH m_window;
    HBRUSH m_panel;
};

} // namespace rule_editor
