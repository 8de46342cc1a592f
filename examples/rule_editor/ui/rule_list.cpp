#include "ui/rule_list.hpp"

#include "ui/layout.hpp"
#include "ui/tool_icon.hpp"
#include "ui/tool_list.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <iterator>

namespace rule_editor {

using rulecanvas::kit::RuleEntry;
using rulecanvas::kit::RuleSet;
using rulecanvas::kit::RuleState;

namespace {

constexpr DWORD Style = WS_VSCROLL | WS_BORDER | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
constexpr wchar_t BoxLetters[] = {L'E', L'S', L'L'};
constexpr int BoxSide = 16;
constexpr int BoxStep = 20;

std::wstring StateName(RuleState state) {
    switch (state) {
    case RuleState::Waiting:
        return L"to be drawn";
    case RuleState::BeingDrawn:
        return L"drawing";
    default:
        return std::wstring();
    }
}

/// A list box does not tell where it was pressed.
LRESULT CALLBACK RememberPress(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR place) {
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
        *reinterpret_cast<POINT*>(place) = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    } else if (message == WM_KEYDOWN) {
        *reinterpret_cast<POINT*>(place) = {-1, -1};
    }
    return DefSubclassProc(list, message, wParam, lParam);
}

} // namespace

bool RuleList::Row::operator==(const Row& other) const {
    return name == other.name && type == other.type && state == other.state && selected == other.selected &&
           std::equal(std::begin(boxes), std::end(boxes), std::begin(other.boxes));
}

RuleList::RuleList(HWND parent, const Theme& look, WORD id, Events given)
    : theme(look), events(std::move(given)), list(MakeControl(parent, L"LISTBOX", L"", Style, id, look.Text())) {
    SendMessageW(list, LB_SETITEMHEIGHT, 0, theme.Scaled(RowHeight));
    SetWindowSubclass(list, &RememberPress, 1, reinterpret_cast<DWORD_PTR>(&pressed));
}

void RuleList::Show(const RuleSet& rules) {
    const size_t selected = rules.Selected();
    std::vector<Row> wanted;
    for (size_t i = 0; i < rules.Entries().size(); ++i) {
        const RuleEntry& entry = rules.Entries()[i];
        wanted.push_back({rulecanvas::kit::ToWide(entry.rule.name),
                          entry.rule.type,
                          StateName(entry.state),
                          {entry.rule.enabled, entry.rule.visible, entry.rule.locked},
                          i == selected});
    }
    if (wanted == rows) {
        return;
    }
    rows = std::move(wanted);
    for (auto count = static_cast<size_t>(SendMessageW(list, LB_GETCOUNT, 0, 0)); count != rows.size();) {
        const bool grow = count < rows.size();
        SendMessageW(list, grow ? LB_ADDSTRING : LB_DELETESTRING, grow ? 0 : count - 1, 0);
        count = grow ? count + 1 : count - 1;
    }
    const bool any = selected != RuleSet::None;
    SendMessageW(list, LB_SETCURSEL, any ? selected : static_cast<WPARAM>(-1), 0);
    InvalidateRect(list, nullptr, FALSE);
}

RECT RuleList::BoxArea(const RECT& row, int box) const {
    const int left = row.left + theme.Scaled(4 + box * BoxStep);
    const int top = row.top + (row.bottom - row.top - theme.Scaled(BoxSide)) / 2;
    return {left, top, left + theme.Scaled(BoxSide), top + theme.Scaled(BoxSide)};
}

POINT RuleList::PlaceOf(size_t rule, Box box) const {
    RECT row = {};
    SendMessageW(list, LB_GETITEMRECT, rule, reinterpret_cast<LPARAM>(&row));
    const RECT area = BoxArea(row, box);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

/// A second click on a box comes as a double click.
void RuleList::OnCommand(WORD event) const {
    const LRESULT index = SendMessageW(list, LB_GETCURSEL, 0, 0);
    if (index < 0 || (event != LBN_SELCHANGE && event != LBN_DBLCLK)) {
        return;
    }
    RECT row = {};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
    const auto rule = static_cast<size_t>(index);
    for (int box = 0; box < BoxCount; ++box) {
        const RECT area = BoxArea(row, box);
        if (PtInRect(&area, pressed) != FALSE) {
            events.boxPressed(rule, static_cast<Box>(box));
            return;
        }
    }
    events.chosen(rule);
}

void RuleList::Draw(const DRAWITEMSTRUCT& item) const {
    if (item.itemID >= rows.size()) {
        return;
    }
    const Row& row = rows[item.itemID];
    const COLORREF background = row.selected ? Theme::Chosen : Theme::Panel;
    theme.Fill(item.hDC, item.rcItem, background);
    for (int box = 0; box < BoxCount; ++box) {
        theme.DrawBox(item.hDC, BoxArea(item.rcItem, box), BoxLetters[box], row.boxes[box]);
    }
    RECT area = item.rcItem;
    area.left += theme.Scaled(4 + BoxCount * BoxStep + 2);
    const RECT icon = {area.left, area.top + theme.Scaled(1), area.left + theme.Scaled(20),
                       area.top + theme.Scaled(21)};
    DrawToolIcon(item.hDC, icon, row.type, background, Theme::Accent);
    area.left += theme.Scaled(24);
    area.right -= theme.Scaled(row.state.empty() ? 4 : 78);
    theme.Write(item.hDC, area, row.name, theme.Text(), row.boxes[InForce] ? Theme::Ink : Theme::Faint, DT_LEFT);
    area.left = area.right;
    area.right = item.rcItem.right - theme.Scaled(4);
    theme.Write(item.hDC, area, row.state, theme.Text(), Theme::Faint, DT_RIGHT);
}

} // namespace rule_editor
