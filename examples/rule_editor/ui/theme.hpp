#pragma once

#include <windows.h>

#include <string>

namespace rule_editor {

/// Colours, fonts and sizes of the program's own controls.
class Theme {
  public:
    Theme();
    ~Theme();
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    /// A length given for 96 dots an inch, in pixels of this screen.
    int Scaled(int length) const { return MulDiv(length, dotsPerInch, 96); }

    HFONT Text() const { return text; }
    HFONT Strong() const { return strong; }
    HBRUSH WindowBrush() const { return window; }

    void Fill(HDC context, const RECT& area, COLORREF colour) const;
    void Frame(HDC context, const RECT& area, COLORREF colour) const;
    /// One line, cut with an ellipsis where it does not fit.
    void Write(HDC context, RECT area, const std::wstring& line, HFONT font, COLORREF colour, UINT alignment) const;
    void DrawButton(const DRAWITEMSTRUCT& item, const std::wstring& caption) const;
    /// A box with a letter, filled when it is on.
    void DrawBox(HDC context, const RECT& area, wchar_t letter, bool on) const;

    static constexpr COLORREF WindowColour = RGB(0xEC, 0xEF, 0xF3);
    static constexpr COLORREF Panel = RGB(0xFF, 0xFF, 0xFF);
    static constexpr COLORREF Border = RGB(0xC9, 0xD0, 0xD9);
    static constexpr COLORREF Ink = RGB(0x1F, 0x29, 0x33);
    static constexpr COLORREF Faint = RGB(0x76, 0x82, 0x8F);
    static constexpr COLORREF Accent = RGB(0x1F, 0x6F, 0xD6);
    static constexpr COLORREF Warning = RGB(0xB4, 0x23, 0x18);
    static constexpr COLORREF Chosen = RGB(0xD8, 0xE8, 0xFC);
    static constexpr COLORREF Pressed = RGB(0xDD, 0xE3, 0xEA);

  private:
    int dotsPerInch = 96;
    HFONT text;
    HFONT strong;
    HBRUSH window;
};

} // namespace rule_editor
