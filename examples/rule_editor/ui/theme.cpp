#include "ui/theme.hpp"

#include <rulecanvas_kit/gdiplus.hpp>

#include <initializer_list>

namespace rule_editor {

namespace {

constexpr int TextHeight = 13;

const wchar_t* FirstInstalled(std::initializer_list<const wchar_t*> faces) {
    for (const wchar_t* face : faces) {
        if (Gdiplus::FontFamily(face).IsAvailable()) {
            return face;
        }
    }
    return L"";
}

HFONT MakeFont(const wchar_t* face, int height, int weight) {
    return CreateFontW(-height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                       CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, DEFAULT_PITCH, face);
}

} // namespace

Theme::Theme() : window(CreateSolidBrush(WindowColour)) {
    const HDC screen = GetDC(nullptr);
    dotsPerInch = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    const wchar_t* const face = FirstInstalled({L"Segoe UI", L"Liberation Sans", L"Tahoma"});
    text = MakeFont(face, Scaled(TextHeight), FW_NORMAL);
    strong = MakeFont(face, Scaled(TextHeight), FW_BOLD);
}

Theme::~Theme() {
    for (const HGDIOBJ object : std::initializer_list<HGDIOBJ>{text, strong, window}) {
        DeleteObject(object);
    }
}

void Theme::Fill(HDC context, const RECT& area, COLORREF colour) const {
    SetDCBrushColor(context, colour);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Theme::Frame(HDC context, const RECT& area, COLORREF colour) const {
    SetDCBrushColor(context, colour);
    FrameRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Theme::Write(HDC context, RECT area, const std::wstring& line, HFONT font, COLORREF colour, UINT alignment) const {
    const HGDIOBJ previous = SelectObject(context, font);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colour);
    DrawTextW(context, line.c_str(), static_cast<int>(line.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | alignment);
    SelectObject(context, previous);
}

void Theme::DrawButton(const DRAWITEMSTRUCT& item, const std::wstring& caption) const {
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool focused = (item.itemState & ODS_FOCUS) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    Fill(item.hDC, item.rcItem, pressed ? Pressed : disabled ? WindowColour : Panel);
    Frame(item.hDC, item.rcItem, focused ? Accent : Border);
    Write(item.hDC, item.rcItem, caption, text, disabled ? Faint : Ink, DT_CENTER);
}

void Theme::DrawBox(HDC context, const RECT& area, wchar_t letter, bool on) const {
    Fill(context, area, on ? Accent : Panel);
    Frame(context, area, on ? Accent : Border);
    Write(context, area, std::wstring(1, letter), text, on ? Panel : Border, DT_CENTER);
}

} // namespace rule_editor
