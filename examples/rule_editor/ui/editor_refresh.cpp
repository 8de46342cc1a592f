#include "ui/editor_window.hpp"

#include "ui/news_text.hpp"

#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>
#include <filesystem>

namespace rule_editor {

using rulecanvas::kit::FigureTitle;
using rulecanvas::kit::FigureType;
using rulecanvas::kit::FindFigureType;
using rulecanvas::kit::OptionSets;
using rulecanvas::kit::Rule;
using rulecanvas::kit::RuleNews;
using rulecanvas::kit::RuleSet;
using rulecanvas::kit::RuleState;

/// The selected rule that commands act on; none while something is drawn.
size_t EditorWindow::Selected() const {
    return Rules().Drawing() == nullptr ? Rules().Rules().Selected() : RuleSet::None;
}

void EditorWindow::Refresh() {
    if (!tooltips || closing) {
        return;
    }
    const bool drawing = Rules().Drawing() != nullptr;
    if (wasDrawing && !drawing) {
        nextRule = Rule();
    }
    wasDrawing = drawing;
    toolList->Mark(drawing ? Rules().Drawing()->type : "", Rules().KeepsDrawing());
    ruleList->Show(Rules().Rules());
    bar->EnableButtons([this](Command command) { return CanExecute(command); });
    helpLine->SetHelp(Rules().Help());
    LogChanges();
    ShowPanel();
    ShowTitle();
}

void EditorWindow::ShowPanel() {
    const size_t selected = Selected();
    if (selected != RuleSet::None) {
        const Rule& rule = Rules().Rules().Entries()[selected].rule;
        panel->Show(FigureTitle(rule.type) + ": " + rule.name, rule);
        return;
    }
    const Rule* const drawn = Rules().Drawing();
    Rule shown = nextRule;
    if (drawn != nullptr) {
        shown.type = drawn->type;
        shown.direction = drawn->direction;
    }
    panel->Show(drawn != nullptr ? "NEXT: " + FigureTitle(drawn->type) : "NEXT RULE", shown);
}

void EditorWindow::ShowTitle() {
    const std::wstring name = path.empty() ? L"new rules" : std::filesystem::path(path).filename().wstring();
    const std::wstring title = (Rules().HasUnsavedChanges() ? L"*" : L"") + name + L" - " + ProgramTitle;
    wchar_t old[MAX_PATH] = {};
    GetWindowTextW(Handle(), old, MAX_PATH);
    if (title != old) {
        SetWindowTextW(Handle(), title.c_str());
    }
}

/// A person's choices for the panel's rule: the selected one, or the next one.
bool EditorWindow::ApplyPanel(const Rule& rule) {
    const size_t selected = Selected();
    std::string problem;
    if (selected != RuleSet::None) {
        const bool changed = Rules().Change(selected, rule, problem);
        if (!changed) {
            Refuse("Not changed: " + problem);
        }
        return changed;
    }
    problem = rulecanvas::kit::OptionProblem(rule.type, rule.option);
    const size_t sameName = rule.name.empty() ? RuleSet::None : Rules().Rules().Find(rule.name);
    if (sameName != RuleSet::None && sameName != Rules().Rules().Unfinished()) {
        problem = "there is another rule named \"" + rule.name + "\"";
    }
    if (!problem.empty()) {
        Refuse("Not taken: " + problem);
        return false;
    }
    nextRule = rule;
    return Rules().Drawing() == nullptr || !Rules().Corners().empty() ||
           StartTool(Rules().Drawing()->type, Rules().KeepsDrawing());
}

void EditorWindow::SetNextRule(const Rule& rule) {
    nextRule = rule;
    ShowPanel();
}

bool EditorWindow::StartTool(const std::string& type, bool keep) {
    if (type.empty()) {
        Rules().StopDrawing();
        Refresh();
        return true;
    }
    Rule look = nextRule;
    look.type = type;
    look.configuration.clear();
    const FigureType* const known = FindFigureType(type);
    const bool chosen = nextRule.type == type && nextRule.direction.has_value();
    if (!chosen) {
        look.direction.reset();
    }
    if (!chosen && known != nullptr && known->firstDirection >= 0 && !OptionSets(look.option, "Direction")) {
        look.direction = known->firstDirection;
    }
    rulecanvas::kit::ChooseReadableColours(look);
    std::string problem;
    const Rule kept = nextRule;
    if (!Rules().StartDrawing(look, keep, problem)) {
        Refuse("Not begun: " + problem);
        Refresh();
        return false;
    }
    nextRule = kept;
    nextRule.type = type;
    wasDrawing = true;
    SetFocus(view->Handle());
    Refresh();
    return true;
}

void EditorWindow::Refuse(const std::string& reason) {
    fullLog.push_back("refused: " + reason);
    helpLine->Refuse(reason);
    MessageBeep(MB_ICONWARNING);
}

void EditorWindow::Log(const std::string& line) {
    fullLog.push_back(line);
    logList->Add(line);
}

void EditorWindow::LogNews(const RuleNews& news) {
    fullLog.push_back(NewsText(news));
}

/// What became of the rules since the last time.
void EditorWindow::LogChanges() {
    const std::vector<Rule> rules = Rules().RulesToSave();
    if (rules == loggedRules) {
        return;
    }
    helpLine->ForgetRefusal();
    const auto find = [](const std::vector<Rule>& list, const std::string& name) {
        return std::find_if(list.begin(), list.end(), [&name](const Rule& rule) { return rule.name == name; });
    };
    for (const Rule& rule : loggedRules) {
        if (find(rules, rule.name) == rules.end()) {
            Log(rule.name + ": taken away");
        }
    }
    for (const Rule& rule : rules) {
        const auto old = find(loggedRules, rule.name);
        if (old == loggedRules.end()) {
            Log(rule.name + ": added");
            nextRule.name.clear();
        } else if (*old != rule) {
            Log(rule.name + (old->configuration != rule.configuration ? ": moved or reshaped" : ": changed"));
        }
    }
    loggedRules = rules;
}

} // namespace rule_editor
