#include "ui/editor_window.hpp"

#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/unicode.hpp>

namespace rule_editor {

using rulecanvas::kit::Colour;
using rulecanvas::kit::FigureType;
using rulecanvas::kit::FindFigureType;
using rulecanvas::kit::Rule;
using rulecanvas::kit::RuleSet;
using rulecanvas::kit::RulesFile;
using rulecanvas::kit::ToUtf8;

bool EditorWindow::CanExecute(Command command) const {
    switch (command) {
    case Command::Play:
        return video->FramesPerSecond() > 0.0;
    case Command::New:
        return !Rules().RulesToSave().empty();
    case Command::Undo:
        return Rules().CanUndo() || !Rules().Corners().empty();
    case Command::Redo:
        return Rules().CanRedo();
    case Command::OpenVideo:
    case Command::Load:
    case Command::Save:
        return true;
    default:
        return Selected() != RuleSet::None;
    }
}

void EditorWindow::Execute(Command command) {
    if (command == Command::None || !CanExecute(command)) {
        return;
    }
    switch (command) {
    case Command::OpenVideo:
        OpenVideoByPrompt();
        break;
    case Command::Play:
        Play(!playing);
        break;
    case Command::New:
        Clear();
        break;
    case Command::Load:
        LoadByPrompt();
        break;
    case Command::Save:
        SaveByPrompt();
        break;
    case Command::Undo:
        Rules().Undo();
        break;
    case Command::Redo:
        Rules().Redo();
        break;
    case Command::Delete:
        Rules().Delete(Selected());
        break;
    case Command::Duplicate:
        Rules().Duplicate(Selected());
        break;
    case Command::Colour:
        ChangeColour();
        break;
    case Command::Deselect:
        Rules().Select(RuleSet::None);
        break;
    case Command::ToggleInForce:
        ToggleBox(Selected(), RuleList::InForce);
        break;
    case Command::ToggleShown:
        ToggleBox(Selected(), RuleList::Shown);
        break;
    case Command::ToggleLocked:
        ToggleBox(Selected(), RuleList::Locked);
        break;
    default:
        SetDirection(static_cast<int32_t>(command) - static_cast<int32_t>(Command::FirstDirection));
        break;
    }
    Refresh();
}

void EditorWindow::ToggleBox(size_t rule, RuleList::Box box) {
    if (rule >= Rules().Rules().Entries().size() || rule == Rules().Rules().Unfinished()) {
        return;
    }
    const Rule& old = Rules().Rules().Entries()[rule].rule;
    Rules().SetFlags(rule, old.enabled != (box == RuleList::InForce), old.visible != (box == RuleList::Shown),
                     old.locked != (box == RuleList::Locked));
}

/// One colour for both looks: the handles still tell a selected rule.
void EditorWindow::ChangeColour() {
    const size_t selected = Selected();
    Rule rule = Rules().Rules().Entries()[selected].rule;
    const Colour first = rule.selectedColour.value_or(rule.unselectedColour.value_or(Colour{255, 255, 0}));
    const std::optional<Colour> colour = prompts.AskForColour(Handle(), first);
    if (!colour || Selected() != selected) {
        return;
    }
    rule.selectedColour = colour;
    rule.unselectedColour = colour;
    std::string problem;
    if (!Rules().Change(selected, rule, problem)) {
        Refuse("Not changed: " + problem);
    }
}

/// `choice` is a place in the directions of the type.
void EditorWindow::SetDirection(int32_t choice) {
    Rule rule = Rules().Rules().Entries()[Selected()].rule;
    const FigureType* const type = FindFigureType(rule.type);
    if (type == nullptr || choice < 0 || static_cast<size_t>(choice) >= type->directions.size()) {
        return;
    }
    rule.direction = type->directions[static_cast<size_t>(choice)].direction;
    std::string problem;
    if (!Rules().Change(Selected(), rule, problem)) {
        Refuse("Not changed: " + problem);
    }
}

void EditorWindow::OpenVideoByPrompt() {
    const std::wstring chosen = prompts.AskForPath(Handle(), PathPurpose::OpenVideo);
    if (chosen.empty()) {
        return;
    }
    std::unique_ptr<VideoSource> opened = OpenVideo(chosen);
    video.swap(opened);
    ShowVideo();
    Arrange();
    Play(true);
}

/// True when the rules may be given up: they are saved, or the user does not want them.
bool EditorWindow::MayDiscard() {
    panel->Apply(false);
    if (!Rules().HasUnsavedChanges()) {
        return true;
    }
    switch (prompts.AskToSave(Handle())) {
    case SaveAnswer::Save:
        return SaveByPrompt();
    case SaveAnswer::Discard:
        return true;
    default:
        return false;
    }
}

void EditorWindow::Clear() {
    if (MayDiscard()) {
        Rules().Clear();
    }
}

bool EditorWindow::SaveByPrompt() {
    panel->Apply(false);
    const std::wstring chosen = path.empty() ? prompts.AskForPath(Handle(), PathPurpose::SaveRules) : path;
    return !chosen.empty() && SaveTo(chosen);
}

void EditorWindow::LoadByPrompt() {
    if (!MayDiscard()) {
        return;
    }
    const std::wstring chosen = prompts.AskForPath(Handle(), PathPurpose::OpenRules);
    if (!chosen.empty()) {
        LoadFrom(chosen);
    }
}

bool EditorWindow::SaveTo(const std::wstring& target) {
    file.picture = video->PictureSize();
    file.rules = Rules().RulesToSave();
    std::string problem;
    if (!WriteRulesFile(target, file, problem)) {
        fullLog.push_back("refused: " + problem);
        prompts.Tell(Handle(), ToUtf8(target) + " was not saved: " + problem);
        return false;
    }
    path = target;
    Rules().MarkSaved();
    Log("rules saved: " + std::to_string(file.rules.size()));
    return true;
}

bool EditorWindow::LoadFrom(const std::wstring& source) {
    std::string problem;
    std::optional<RulesFile> read = rulecanvas::kit::ReadRulesFile(source, problem);
    if (!read || !Rules().Load(read->rules, problem)) {
        fullLog.push_back("refused: " + problem);
        prompts.Tell(Handle(), ToUtf8(source) + " was not loaded: " + problem);
        return false;
    }
    file = std::move(*read);
    path = source;
    Log("rules loaded: " + std::to_string(file.rules.size()));
    Refresh();
    return true;
}

bool EditorWindow::TakesShortcut(WPARAM key) {
    switch (key) {
    case 'S':
        Execute(Command::Save);
        return true;
    case 'O':
        Execute(Command::Load);
        return true;
    case 'N':
        Execute(Command::New);
        return true;
    default:
        return false;
    }
}

/// Keys go to the view, whatever control has the focus, but what a text field or the control itself can use.
bool EditorWindow::TakesKey(const MSG& message) {
    const bool inside = message.hwnd == Handle() || IsChild(Handle(), message.hwnd) != FALSE;
    if (!inside || message.message != WM_KEYDOWN) {
        return false;
    }
    const bool control = GetKeyState(VK_CONTROL) < 0;
    const bool typing = panel->IsEdit(message.hwnd);
    if (control && TakesShortcut(message.wParam)) {
        return true;
    }
    if (typing && message.wParam == VK_RETURN) {
        if (panel->Apply(true)) {
            SetFocus(view->Handle());
        }
        return true;
    }
    if (typing && message.wParam == VK_ESCAPE) {
        panel->Revert();
        SetFocus(view->Handle());
        return true;
    }
    if (message.hwnd == view->Handle() || (typing && message.wParam != VK_TAB)) {
        return false;
    }
    if (control || message.wParam == VK_ESCAPE || message.wParam == VK_DELETE) {
        SendMessageW(view->Handle(), WM_KEYDOWN, message.wParam, message.lParam);
        return true;
    }
    MSG dialogKey = message;
    return IsDialogMessageW(Handle(), &dialogKey) != FALSE;
}

} // namespace rule_editor
