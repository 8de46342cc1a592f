#include "ui/theme.hpp"

#include "picture/gdiplus.hpp"

#include <initializer_list>

namespace rule_editor {

namespace {

constexpr int TEXT_HEIGHT = -13;
constexpr int SMALL_HEIGHT = -12;

const wchar_t* firstInstalled(std::initializer_list<const wchar_t*> faces) {
    for (const wchar_t* face : faces) {
        if (Gdiplus::FontFamily(face).IsAvailable()) {
            return face;
        }
    }
    return L"";
}

HFONT makeFont(const wchar_t* face, int height, int weight) {
    return CreateFontW(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                       CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, DEFAULT_PITCH, face);
}

} // namespace

Theme::Theme() : m_window(CreateSolidBrush(WINDOW)), m_panel(CreateSolidBrush(PANEL)) {
    const wchar_t* const face = firstInstalled({L"Segoe UI", L"Liberation Sans", L"Tahoma"});
    m_text = makeFont(face, TEXT_HEIGHT, FW_NORMAL);
    m_strong = makeFont(face, TEXT_HEIGHT, FW_BOLD);
    m_small = makeFont(face, SMALL_HEIGHT, FW_NORMAL);
}

Theme::~Theme() {
    for (const HGDIOBJ object : std::initializer_list<HGDIOBJ>{m_text, m_strong, m_small, m_window, m_panel}) {
        DeleteObject(object);
    }
}

void Theme::fill(HDC context, const RECT& area, COLORREF colour) const {
    SetDCBrushColor(context, colour);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Theme::frame(HDC context, const RECT& area, COLORREF colour) const {
    SetDCBrushColor(context, colour);
    FrameRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Theme::write(HDC context, RECT area, const std::wstring& line, HFONT font, COLORREF colour, UINT alignment) const {
    const HGDIOBJ previous = SelectObject(context, font);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, colour);
    DrawTextW(context, line.c_str(), static_cast<int>(line.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | alignment);
    SelectObject(context, previous);
}

int Theme::widthOf(HDC context, const std::wstring& line, HFONT font) const {
    const HGDIOBJ previous = SelectObject(context, font);
    SIZE size = {};
    GetTextExtentPoint32W(context, line.c_str(), static_cast<int>(line.size()), &size);
    SelectObject(context, previous);
    return size.cx;
}

void Theme::drawButton(const DRAWITEMSTRUCT& item, const std::wstring& caption) const {
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool focused = (item.itemState & ODS_FOCUS) != 0;
    fill(item.hDC, item.rcItem, pressed ? PRESSED : PANEL);
    frame(item.hDC, item.rcItem, focused ? ACCENT : BORDER);
    write(item.hDC, item.rcItem, caption, m_text, INK, DT_CENTER);
}

} // namespace rule_editor
