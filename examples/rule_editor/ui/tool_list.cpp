#include "ui/tool_list.hpp"

#include "ui/layout.hpp"
#include "ui/tool_icon.hpp"

#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/unicode.hpp>

namespace rule_editor {

using rulecanvas::kit::FigureTypes;

namespace {

constexpr DWORD Style = WS_VSCROLL | WS_BORDER | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

} // namespace

ToolList::ToolList(HWND parent, const Theme& look, WORD id, Chosen whenChosen)
    : theme(look), chosen(std::move(whenChosen)), list(MakeControl(parent, L"LISTBOX", L"", Style, id, look.Text())) {
    for (size_t i = 0; i <= FigureTypes().size(); ++i) {
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    }
    SendMessageW(list, LB_SETITEMHEIGHT, 0, theme.Scaled(RowHeight));
    Mark("", false);
}

int ToolList::WantedHeight() const {
    return static_cast<int>(FigureTypes().size() + 1) * theme.Scaled(RowHeight) + 2;
}

void ToolList::Mark(const std::string& type, bool kept) {
    size_t row = 0;
    for (size_t i = 0; i < FigureTypes().size(); ++i) {
        row = type == FigureTypes()[i].type ? i + 1 : row;
    }
    if (SendMessageW(list, LB_GETCURSEL, 0, 0) != static_cast<LRESULT>(row)) {
        SendMessageW(list, LB_SETCURSEL, row, 0);
    }
    if (keeping != kept) {
        keeping = kept;
        InvalidateRect(list, nullptr, FALSE);
    }
}

void ToolList::OnCommand(WORD event) const {
    const LRESULT row = SendMessageW(list, LB_GETCURSEL, 0, 0);
    if (row < 0 || (event != LBN_SELCHANGE && event != LBN_DBLCLK)) {
        return;
    }
    const bool pointer = row == 0;
    chosen(pointer ? "" : FigureTypes().at(static_cast<size_t>(row) - 1).type, !pointer && event == LBN_DBLCLK);
}

void ToolList::Draw(const DRAWITEMSTRUCT& item) const {
    if (item.itemID > FigureTypes().size()) {
        return;
    }
    const bool marked = (item.itemState & ODS_SELECTED) != 0;
    const COLORREF background = marked ? Theme::Chosen : Theme::Panel;
    theme.Fill(item.hDC, item.rcItem, background);
    RECT area = item.rcItem;
    area.left += theme.Scaled(6);
    if (item.itemID == 0) {
        theme.Write(item.hDC, area, L"Pointer: select and change", theme.Text(), Theme::Ink, DT_LEFT);
        return;
    }
    const auto& type = FigureTypes()[item.itemID - 1];
    const RECT icon = {area.left, area.top + theme.Scaled(1), area.left + theme.Scaled(20),
                       area.top + theme.Scaled(21)};
    DrawToolIcon(item.hDC, icon, type.type, background, Theme::Accent);
    area.left += theme.Scaled(26);
    area.right -= theme.Scaled(6);
    theme.Write(item.hDC, area, rulecanvas::kit::ToWide(type.title), theme.Text(), Theme::Ink, DT_LEFT);
    if (marked && keeping) {
        theme.Write(item.hDC, area, L"kept", theme.Text(), Theme::Accent, DT_RIGHT);
    }
}

} // namespace rule_editor
