#include "ui/tool_bar.hpp"

#include <iterator>

namespace rule_editor {

namespace {

struct Button {
    Command command;
    const wchar_t* caption;
    int width;
};

constexpr Button Buttons[] = {
    {Command::OpenVideo, L"Open video", 88},
    {Command::Play, L"Play", 58},
    {Command::New, L"Clear", 58},
    {Command::Load, L"Load rules", 84},
    {Command::Save, L"Save rules", 84},
    {Command::Undo, L"Undo", 58},
    {Command::Redo, L"Redo", 58},
    {Command::Duplicate, L"Duplicate", 78},
    {Command::Delete, L"Delete", 62},
    {Command::Colour, L"Colour", 64},
    {Command::Deselect, L"Deselect", 74},
};
constexpr int ButtonHeight = 26;
constexpr int Gap = 6;

} // namespace

ToolBar::ToolBar(HWND parent, const Theme& look) : theme(look) {
    for (const Button& button : Buttons) {
        buttons.push_back(MakeControl(parent, L"BUTTON", button.caption, WS_TABSTOP | BS_OWNERDRAW,
                                      static_cast<WORD>(button.command), theme.Text()));
    }
}

int ToolBar::Width() const {
    int width = -theme.Scaled(Gap);
    for (const Button& button : Buttons) {
        width += theme.Scaled(button.width) + theme.Scaled(Gap);
    }
    return width;
}

int ToolBar::Height() const {
    return theme.Scaled(ButtonHeight);
}

void ToolBar::Place(Layout& layout, int left, int top) const {
    for (size_t i = 0; i < buttons.size(); ++i) {
        const int right = left + theme.Scaled(Buttons[i].width);
        layout.Move(buttons[i], {left, top, right, top + Height()});
        left = right + theme.Scaled(Gap);
    }
}

void ToolBar::EnableButtons(const std::function<bool(Command)>& isPossible) const {
    for (size_t i = 0; i < buttons.size(); ++i) {
        const bool possible = isPossible(Buttons[i].command);
        if ((IsWindowEnabled(buttons[i]) != FALSE) == possible) {
            continue;
        }
        /// A disabled button would swallow the keyboard.
        if (!possible && GetFocus() == buttons[i]) {
            SetFocus(GetParent(buttons[i]));
        }
        EnableWindow(buttons[i], possible ? TRUE : FALSE);
    }
}

void ToolBar::SetCaption(Command command, const wchar_t* caption) const {
    SetWindowTextW(ButtonOf(command), caption);
    InvalidateRect(ButtonOf(command), nullptr, FALSE);
}

Command ToolBar::CommandOf(WORD control, WORD event) const {
    const bool pressed = event == BN_CLICKED || event == BN_DBLCLK;
    for (const Button& button : Buttons) {
        if (pressed && control == static_cast<WORD>(button.command)) {
            return button.command;
        }
    }
    return Command::None;
}

void ToolBar::Draw(const DRAWITEMSTRUCT& item) const {
    wchar_t caption[32] = {};
    GetWindowTextW(item.hwndItem, caption, static_cast<int>(std::size(caption)));
    theme.DrawButton(item, caption);
}

HWND ToolBar::ButtonOf(Command command) const {
    for (size_t i = 0; i < buttons.size(); ++i) {
        if (Buttons[i].command == command) {
            return buttons[i];
        }
    }
    return nullptr;
}

} // namespace rule_editor
