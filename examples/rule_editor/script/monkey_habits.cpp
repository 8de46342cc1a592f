#include "script/input.hpp"
#include "script/monkey.hpp"

#include <rulecanvas_kit/figure_types.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace rule_editor {

using rulecanvas::PointF;
using rulecanvas::kit::FigureTypes;

namespace {

constexpr int MostTyped = 12;

/// A place a little beside the view is a place too.
constexpr int Beyond = 12;

} // namespace

POINT Monkey::Somewhere() {
    const Size size = window.View().ClientSize();
    return {Pick(-Beyond, size.width + Beyond), Pick(-Beyond, size.height + Beyond)};
}

/// On or near a point of a figure, so that figures are met more often than by chance.
POINT Monkey::OnAFigure() {
    const auto& rules = window.Rules().Rules();
    if (rules.Entries().empty()) {
        return Somewhere();
    }
    const auto index = static_cast<size_t>(Pick(0, static_cast<int>(rules.Entries().size()) - 1));
    const std::vector<PointF> points = rules.Points(index);
    if (points.empty()) {
        return Somewhere();
    }
    const PointF point = points[static_cast<size_t>(Pick(0, static_cast<int>(points.size()) - 1))];
    return {static_cast<LONG>(point.x) + Pick(-3, 3), static_cast<LONG>(point.y) + Pick(-3, 3)};
}

void Monkey::Post(UINT message, WPARAM buttons, POINT at) {
    PostMouse(window.View().Handle(), message, at.x, at.y, buttons | VideoView::Scripted);
    ++sent;
}

void Monkey::DragSomewhere() {
    Post(WM_LBUTTONDOWN, MK_LBUTTON, Pick(0, 1) == 0 ? Somewhere() : OnAFigure());
    for (int i = Pick(0, 4); i > 0; --i) {
        Post(WM_MOUSEMOVE, MK_LBUTTON, Somewhere());
    }
    if (Pick(0, 9) == 0) {
        PostKey("escape", window.View().Handle());
        ++sent;
    }
    Post(WM_LBUTTONUP, 0, Somewhere());
}

void Monkey::ClickSomewhere() {
    const POINT at = Pick(0, 2) == 0 ? OnAFigure() : Somewhere();
    const bool right = Pick(0, 4) == 0;
    Post(WM_MOUSEMOVE, 0, at);
    Post(right ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, right ? MK_RBUTTON : MK_LBUTTON, at);
    Post(right ? WM_RBUTTONUP : WM_LBUTTONUP, 0, at);
    if (!right && Pick(0, 7) == 0) {
        Post(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
        Post(WM_LBUTTONUP, 0, at);
    }
}

void Monkey::LoneMessage() {
    constexpr UINT Messages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP,     WM_RBUTTONDOWN,  WM_RBUTTONUP,
                                 WM_MOUSEMOVE,   WM_LBUTTONDBLCLK, WM_RBUTTONDBLCLK};
    Post(Messages[Pick(0, static_cast<int>(std::size(Messages)) - 1)], 0, Somewhere());
}

void Monkey::PressKey() {
    constexpr const char* Keys[] = {"escape", "enter",  "backspace", "delete",     "tab",        "shift+tab", "left",
                                    "right",  "up",     "down",      "shift+left", "shift+down", "ctrl+z",    "ctrl+z",
                                    "ctrl+y", "ctrl+d", "ctrl+s",    "ctrl+o",     "ctrl+n",     "a"};
    PostKey(Keys[Pick(0, static_cast<int>(std::size(Keys)) - 1)], window.View().Handle());
    ++sent;
}

void Monkey::ChooseTool() {
    const HWND list = window.Tools().Handle();
    RECT row = {};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(Pick(0, static_cast<int>(FigureTypes().size()))),
                 reinterpret_cast<LPARAM>(&row));
    PostClick(list, {row.left + 40, row.top + 8}, 0, Pick(0, 9) == 0);
    sent += 2;
}

void Monkey::UseList() {
    const auto count = static_cast<int>(window.Rules().Rules().Entries().size());
    if (count == 0) {
        return;
    }
    const auto rule = static_cast<size_t>(Pick(0, count - 1));
    const bool box = Pick(0, 1) == 0;
    const auto which = static_cast<RuleList::Box>(Pick(0, RuleList::BoxCount - 1));
    const POINT first = window.List().PlaceOf(rule, which);
    PostClick(window.List().Handle(), box ? first : POINT{first.x + 90, first.y}, 0, Pick(0, 3) == 0);
    sent += 2;
}

void Monkey::PressButton() {
    constexpr Command Buttons[] = {Command::New,      Command::Load,   Command::Save,      Command::Undo,
                                   Command::Redo,     Command::Delete, Command::Duplicate, Command::Colour,
                                   Command::Deselect, Command::Play};
    const Command command = Buttons[Pick(0, static_cast<int>(std::size(Buttons)) - 1)];
    PostClick(window.Bar().ButtonOf(command), {5, 5}, 0, Pick(0, 2) == 0);
    sent += 2;
}

void Monkey::TypeText() {
    constexpr wchar_t Letters[] = L"abcE{}\":,0123 \x00FC";
    const HWND edit = window.Panel().EditOf(static_cast<RulePanel::Field>(Pick(0, RulePanel::FieldCount - 1)));
    SetFocus(edit);
    for (int i = Pick(1, MostTyped); i > 0; --i) {
        PostMessageW(edit, WM_CHAR, Letters[Pick(0, static_cast<int>(std::size(Letters)) - 2)], 0);
        ++sent;
    }
    if (Pick(0, 1) == 0) {
        PostMessageW(edit, WM_KEYDOWN, Pick(0, 3) == 0 ? VK_ESCAPE : VK_RETURN, 0);
        ++sent;
    }
}

void Monkey::ChooseDirection() {
    const HWND list = window.Panel().Directions();
    if (SendMessageW(list, CB_GETCOUNT, 0, 0) > 0) {
        SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(Pick(0, 3)), 0);
        PostMessageW(window.Handle(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        ++sent;
    }
}

void Monkey::UseMenu() {
    constexpr UINT Choices[] = {
        0,
        static_cast<UINT>(Command::Delete),
        static_cast<UINT>(Command::Duplicate),
        static_cast<UINT>(Command::Colour),
        static_cast<UINT>(Command::ToggleInForce),
        static_cast<UINT>(Command::ToggleShown),
        static_cast<UINT>(Command::ToggleLocked),
        static_cast<UINT>(Command::FirstDirection) + 1,
        static_cast<UINT>(Command::Undo),
    };
    prompts.menuChoice = Choices[Pick(0, static_cast<int>(std::size(Choices)) - 1)];
    const POINT at = OnAFigure();
    Post(WM_RBUTTONDOWN, MK_RBUTTON, at);
    Post(WM_RBUTTONUP, 0, at);
}

void Monkey::Resize() {
    window.ResizeClient({Pick(300, 1300), Pick(200, 900)});
    ++sent;
}

void Monkey::LoseCapture() {
    SendMessageW(window.View().Handle(), WM_CANCELMODE, 0, 0);
    SetCapture(window.Handle());
    ReleaseCapture();
    ++sent;
}

void Monkey::ChooseAnswers() {
    const std::filesystem::path place(folder);
    std::ofstream(place / "broken.rules.json") << "{\"format\":\"rulecanvas-rules\",\"version\":1,\"rules\":[{}]}";
    const std::wstring paths[] = {L"", (place / "monkey.rules.json").wstring(),
                                  (place / "broken.rules.json").wstring()};
    prompts.answer = static_cast<SaveAnswer>(Pick(0, 2));
    prompts.path = paths[Pick(0, 2)];
    prompts.colour = rulecanvas::kit::Colour{Pick(0, 255), Pick(0, 255), Pick(0, 255)};
}

} // namespace rule_editor
