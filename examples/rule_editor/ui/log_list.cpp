#include "ui/log_list.hpp"

#include "ui/layout.hpp"

#include <rulecanvas_kit/unicode.hpp>

namespace rule_editor {

namespace {

/// The list keeps no rows of its own: a number of them is told to it.
constexpr DWORD Style =
    WS_VSCROLL | WS_BORDER | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_NODATA | LBS_NOINTEGRALHEIGHT | LBS_NOSEL;
constexpr size_t MostLines = 30000;

std::wstring TimeOfDay() {
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    wchar_t text[16] = {};
    wsprintfW(text, L"%02d:%02d:%02d", now.wHour, now.wMinute, now.wSecond);
    return text;
}

} // namespace

LogList::LogList(HWND parent, const Theme& look, WORD id)
    : theme(look), list(MakeControl(parent, L"LISTBOX", L"", Style, id, look.Text())) {
    SendMessageW(list, LB_SETITEMHEIGHT, 0, theme.Scaled(LineHeight));
}

void LogList::Add(const std::string& line) {
    RECT area = {};
    GetClientRect(list, &area);
    const auto top = static_cast<size_t>(SendMessageW(list, LB_GETTOPINDEX, 0, 0));
    const auto fits = static_cast<size_t>(area.bottom / theme.Scaled(LineHeight));
    const bool atEnd = top + fits >= lines.size();
    lines.push_back(TimeOfDay() + L"   " + rulecanvas::kit::ToWide(line));
    if (lines.size() > MostLines) {
        lines.pop_front();
    }
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_SETCOUNT, lines.size(), 0);
    SendMessageW(list, LB_SETTOPINDEX, atEnd ? lines.size() - 1 : top, 0);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void LogList::Draw(const DRAWITEMSTRUCT& item) const {
    theme.Fill(item.hDC, item.rcItem, Theme::Panel);
    if (item.itemID < lines.size()) {
        RECT area = item.rcItem;
        area.left += theme.Scaled(4);
        theme.Write(item.hDC, area, lines[item.itemID], theme.Text(), Theme::Ink, DT_LEFT);
    }
}

} // namespace rule_editor
