#include "ui/rule_panel.hpp"

#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>

namespace rule_editor {

using rulecanvas::kit::FigureType;
using rulecanvas::kit::FindFigureType;
using rulecanvas::kit::Rule;
using rulecanvas::kit::ToUtf8;
using rulecanvas::kit::ToWide;

namespace {

constexpr int HeadingHeight = 26;
constexpr int LineHeight = 22;
constexpr int LineGap = 5;
constexpr int LabelWidth = 62;
constexpr int OpenListHeight = 140;
constexpr WORD DirectionControl = RulePanel::FieldCount;
constexpr WORD FirstLabel = 10;

constexpr const wchar_t* Titles[] = {L"Name", L"Label", L"Caption", L"Option", L"Direction"};
constexpr std::string Rule::*Members[] = {&Rule::name, &Rule::label, &Rule::caption, &Rule::option};

std::wstring TextOf(HWND control) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(control)), L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

} // namespace

RulePanel::RulePanel(HWND parent, const Theme& look, WORD firstId, Applied whenApplied)
    : theme(look), applied(std::move(whenApplied)), firstControl(firstId) {
    constexpr DWORD EditStyle = WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL;
    for (WORD i = 0; i <= FieldCount; ++i) {
        const WORD id = static_cast<WORD>(firstId + FirstLabel + i);
        labels[i] = MakeControl(parent, L"STATIC", Titles[i], SS_CENTERIMAGE, id, theme.Text());
    }
    for (WORD i = 0; i < FieldCount; ++i) {
        edits[i] = MakeControl(parent, L"EDIT", L"", EditStyle, static_cast<WORD>(firstId + i), theme.Text());
    }
    directions = MakeControl(parent, L"COMBOBOX", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
                             static_cast<WORD>(firstId + DirectionControl), theme.Text());
    ShowDirections();
}

void RulePanel::Show(const std::string& newHeading, const Rule& rule) {
    const std::wstring newTitle = ToWide(newHeading);
    if (newTitle == title && (typed || rule == shown)) {
        return;
    }
    if (newTitle != title) {
        title = newTitle;
        InvalidateRect(GetParent(directions), &heading, FALSE);
    }
    shown = rule;
    Revert();
}

void RulePanel::Revert() {
    filling = true;
    for (size_t i = 0; i < FieldCount; ++i) {
        const std::wstring text = ToWide(shown.*Members[i]);
        if (TextOf(edits[i]) != text) {
            SetWindowTextW(edits[i], text.c_str());
        }
    }
    ShowDirections();
    filling = false;
    typed = false;
}

void RulePanel::ShowDirections() {
    const FigureType* const type = FindFigureType(shown.type);
    const bool any = type != nullptr && !type->directions.empty();
    SendMessageW(directions, CB_RESETCONTENT, 0, 0);
    EnableWindow(directions, any ? TRUE : FALSE);
    for (size_t i = 0; any && i < type->directions.size(); ++i) {
        SendMessageW(directions, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(type->directions[i].title).c_str()));
        if (type->directions[i].direction == shown.direction.value_or(-1)) {
            SendMessageW(directions, CB_SETCURSEL, i, 0);
        }
    }
}

Rule RulePanel::Typed() const {
    Rule rule = shown;
    for (size_t i = 0; i < FieldCount; ++i) {
        rule.*Members[i] = ToUtf8(TextOf(edits[i]));
    }
    return rule;
}

bool RulePanel::Apply(bool insist) {
    if (!typed) {
        return true;
    }
    const Rule rule = Typed();
    typed = false;
    if (applied(rule)) {
        return true;
    }
    if (insist) {
        typed = true;
    } else {
        Revert();
    }
    return false;
}

int RulePanel::Height() const {
    return theme.Scaled(HeadingHeight + (FieldCount + 1) * (LineHeight + LineGap));
}

void RulePanel::Place(Layout& layout, const RECT& area) {
    heading = {area.left, area.top, area.right, area.top + theme.Scaled(HeadingHeight)};
    int y = heading.bottom;
    for (size_t i = 0; i <= FieldCount; ++i) {
        const int left = area.left + theme.Scaled(LabelWidth);
        const int bottom = y + theme.Scaled(LineHeight);
        layout.Move(labels[i], {area.left, y, left, bottom});
        if (i < FieldCount) {
            layout.Move(edits[i], {left, y, area.right, bottom});
        } else {
            layout.Move(directions, {left, y, area.right, y + theme.Scaled(OpenListHeight)});
        }
        y = bottom + theme.Scaled(LineGap);
    }
}

void RulePanel::PaintHeading(HDC context) const {
    theme.Fill(context, heading, Theme::WindowColour);
    theme.Write(context, heading, title, theme.Strong(), Theme::Faint, DT_LEFT);
}

bool RulePanel::IsEdit(HWND control) const {
    return std::find(edits.begin(), edits.end(), control) != edits.end();
}

bool RulePanel::OnCommand(WORD control, WORD event) {
    if (control < firstControl || control > firstControl + DirectionControl) {
        return false;
    }
    if (control == firstControl + DirectionControl) {
        const FigureType* const type = FindFigureType(shown.type);
        const LRESULT chosen = SendMessageW(directions, CB_GETCURSEL, 0, 0);
        if (event == CBN_SELCHANGE && type != nullptr && chosen >= 0) {
            Rule rule = Typed();
            rule.direction = type->directions.at(static_cast<size_t>(chosen)).direction;
            typed = false;
            if (!applied(rule)) {
                Revert();
            }
        }
    } else if (event == EN_CHANGE && !filling) {
        typed = true;
    } else if (event == EN_KILLFOCUS) {
        Apply(false);
    }
    return true;
}

} // namespace rule_editor
