#include "script/input.hpp"
#include "script/script_player.hpp"

#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/unicode.hpp>

#include <stdexcept>

namespace rule_editor {

using rulecanvas::kit::Colour;
using rulecanvas::kit::FigureTypes;

namespace {

using EditorCommand = rule_editor::Command;

EditorCommand CommandNamed(const std::string& name) {
    static const std::map<std::string, EditorCommand> names = {{"open-video", EditorCommand::OpenVideo},
                                                               {"play", EditorCommand::Play},
                                                               {"clear", EditorCommand::New},
                                                               {"load", EditorCommand::Load},
                                                               {"save", EditorCommand::Save},
                                                               {"undo", EditorCommand::Undo},
                                                               {"redo", EditorCommand::Redo},
                                                               {"delete", EditorCommand::Delete},
                                                               {"duplicate", EditorCommand::Duplicate},
                                                               {"colour", EditorCommand::Colour},
                                                               {"deselect", EditorCommand::Deselect},
                                                               {"in-force", EditorCommand::ToggleInForce},
                                                               {"shown", EditorCommand::ToggleShown},
                                                               {"locked", EditorCommand::ToggleLocked},
                                                               {"none", EditorCommand::None}};
    const auto found = names.find(name);
    if (found == names.end()) {
        throw std::runtime_error("there is no command " + name);
    }
    return found->second;
}

POINT MiddleOfRow(HWND list, size_t row) {
    RECT area = {};
    SendMessageW(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&area));
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

RulePanel::Field FieldNamed(const std::string& name) {
    static const std::map<std::string, RulePanel::Field> fields = {{"name", RulePanel::Name},
                                                                   {"label", RulePanel::Label},
                                                                   {"caption", RulePanel::Caption},
                                                                   {"option", RulePanel::Option}};
    return fields.at(name);
}

} // namespace

void ScriptPlayer::Key(const ScriptStep& step) {
    PostKey(step.words[0], window.View().Handle());
}

HWND ScriptPlayer::ButtonNamed(const std::string& name) const {
    return window.Bar().ButtonOf(CommandNamed(name));
}

/// Two clicks of a hand are a click and a double click.
void ScriptPlayer::Button(const ScriptStep& step) {
    constexpr POINT Inside = {5, 5};
    PostClick(ButtonNamed(step.words[0]), Inside, 0, step.words.size() > 1 && step.words[1] == "twice");
}

void ScriptPlayer::ToolRow(const ScriptStep& step) {
    size_t row = 0;
    for (size_t i = 0; i < FigureTypes().size(); ++i) {
        row = step.words[0] == FigureTypes()[i].type ? i + 1 : row;
    }
    const HWND list = window.Tools().Handle();
    PostClick(list, MiddleOfRow(list, row), 0, step.words.size() > 1);
}

void ScriptPlayer::Row(const ScriptStep& step) {
    const HWND list = window.List().Handle();
    PostClick(list, MiddleOfRow(list, RuleNamed(step.text)), 0, false);
}

void ScriptPlayer::Box(const ScriptStep& step) {
    static const std::map<std::string, RuleList::Box> boxes = {
        {"in-force", RuleList::InForce}, {"shown", RuleList::Shown}, {"locked", RuleList::Locked}};
    const size_t rule = RuleNamed(step.text.substr(step.words[0].size() + 1));
    PostClick(window.List().Handle(), window.List().PlaceOf(rule, boxes.at(step.words[0])), 0, false);
}

/// Types a text into a field of the panel, and Enter.
void ScriptPlayer::FieldText(const ScriptStep& step) {
    const HWND edit = window.Panel().EditOf(FieldNamed(step.words[0]));
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, WM_CLEAR, 0, 0);
    const std::string text = step.words.size() > 1 ? step.text.substr(step.words[0].size() + 1) : "";
    for (const wchar_t letter : rulecanvas::kit::ToWide(text)) {
        PostMessageW(edit, WM_CHAR, letter, 0);
    }
    PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
}

void ScriptPlayer::DirectionChoice(const ScriptStep& step) {
    const HWND list = window.Panel().Directions();
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(NumberAt(step, 0)), 0);
    PostMessageW(window.Handle(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

void ScriptPlayer::MenuChoice(const ScriptStep& step) {
    const std::string& name = step.words[0];
    const bool direction = name.rfind("direction-", 0) == 0;
    const auto first = static_cast<UINT>(EditorCommand::FirstDirection);
    prompts.menuChoice =
        direction ? first + static_cast<UINT>(name.back() - '0') : static_cast<UINT>(CommandNamed(name));
    Post(WM_RBUTTONDOWN, MK_RBUTTON, NumberAt(step, 1), NumberAt(step, 2));
    Post(WM_RBUTTONUP, 0, NumberAt(step, 1), NumberAt(step, 2));
}

/// As when another window comes up in the middle of a gesture.
void ScriptPlayer::StealCapture(const ScriptStep&) {
    SetCapture(window.Handle());
    ReleaseCapture();
}

void ScriptPlayer::Close(const ScriptStep&) {
    PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
}

void ScriptPlayer::Answer(const ScriptStep& step) {
    const std::string& word = step.words[0];
    prompts.answer = word == "save" ? SaveAnswer::Save : word == "discard" ? SaveAnswer::Discard : SaveAnswer::Cancel;
    prompts.path = step.words.size() > 1 ? InFolder(step.words[1]) : std::wstring();
}

void ScriptPlayer::AnswerColour(const ScriptStep& step) {
    prompts.colour = Colour{NumberAt(step, 0), NumberAt(step, 1), NumberAt(step, 2)};
}

} // namespace rule_editor
