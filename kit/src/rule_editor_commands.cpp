#include <rulecanvas_kit/rule_editor.hpp>

#include <rulecanvas_kit/figure_types.hpp>

namespace rulecanvas::kit {

namespace {

constexpr int DuplicateShift = 16;
constexpr const char* PixelCounter = "PixelCountShape";

} // namespace

void RuleEditor::Select(size_t index) {
    if (!drawing) {
        rules.Select(index);
        Changed();
    }
}

void RuleEditor::SelectNext(bool backwards) {
    const size_t count = rules.Entries().size();
    if (drawing || count == 0) {
        return;
    }
    const size_t selected = rules.Selected();
    if (selected == RuleSet::None) {
        Select(backwards ? count - 1 : 0);
    } else {
        Select((selected + (backwards ? count - 1 : 1)) % count);
    }
}

std::string RuleEditor::FreeName(const std::string& type) const {
    for (int number = 1;; ++number) {
        const std::string name = FigureTitle(type) + " " + std::to_string(number);
        if (rules.Find(name) == RuleSet::None) {
            return name;
        }
    }
}

/// Why a rule cannot stand at that index; empty when it can.
std::string RuleEditor::ProblemOf(const Rule& rule, size_t index) const {
    const size_t sameName = rules.Find(rule.name);
    if (rule.name.empty()) {
        return "a rule needs a name";
    }
    if (sameName != RuleSet::None && sameName != index) {
        return "there is another rule named \"" + rule.name + "\"";
    }
    return OptionProblem(rule.type, rule.option);
}

bool RuleEditor::Add(const Rule& rule, std::string& problem) {
    problem = ProblemOf(rule, RuleSet::None);
    if (!problem.empty() || !rules.Add(rule, problem)) {
        return false;
    }
    rules.Select(rules.Entries().size() - 1);
    Settle();
    return true;
}

bool RuleEditor::Change(size_t index, const Rule& rule, std::string& problem) {
    const Rule old = rules.Entries().at(index).rule;
    problem = ProblemOf(rule, index);
    if (!problem.empty()) {
        return false;
    }
    if (rule == old) {
        return true;
    }
    Rule changed = rule;
    changed.configuration = RenamedConfiguration(old, rule.name);
    const bool unfinished = index == rules.Unfinished();
    if (!rules.Replace(index, changed, problem)) {
        return false;
    }
    if (unfinished) {
        drawn = changed;
        drawn.name.clear();
    }
    Settle();
    return true;
}

void RuleEditor::SetFlags(size_t index, bool enabled, bool visible, bool locked) {
    rules.SetFlags(index, enabled, visible, locked);
    Settle();
}

void RuleEditor::Delete(size_t index) {
    if (index >= rules.Entries().size() || index == rules.Unfinished()) {
        return;
    }
    rules.Remove(index);
    Settle();
}

void RuleEditor::Clear() {
    StopDrawing();
    Show({});
    Settle();
}

bool RuleEditor::Duplicate(size_t index) {
    if (index >= rules.Entries().size() || drawing) {
        return false;
    }
    Rule copy = rules.Entries()[index].rule;
    const std::string name = FreeName(copy.type);
    copy.configuration = RenamedConfiguration(copy, name);
    copy.name = name;
    const std::string moved = MovedConfiguration(copy, host.viewSize(), DuplicateShift, DuplicateShift);
    copy.configuration = moved.empty() ? copy.configuration : moved;
    std::string problem;
    if (!Add(copy, problem)) {
        Say(problem);
        return false;
    }
    return true;
}

void RuleEditor::Nudge(size_t index, int dx, int dy) {
    if (index >= rules.Entries().size() || drawing || !rules.Settled() || rules.Entries()[index].rule.locked) {
        return;
    }
    Rule moved = rules.Entries()[index].rule;
    moved.configuration = MovedConfiguration(moved, host.viewSize(), dx, dy);
    if (moved.configuration.empty()) {
        Say(moved.type == PixelCounter ? "A pixel counter is a size without a place: drag it with the mouse"
                                       : "This figure cannot be moved");
        return;
    }
    std::string problem;
    if (!rules.Replace(index, moved, problem)) {
        Say(problem);
    }
    Settle();
}

void RuleEditor::Undo() {
    if (BeingDrawn() && !corners.empty()) {
        TakeBackCorner();
        return;
    }
    StopDrawing();
    if (CanUndo()) {
        Show(history.Undo());
        Changed();
    }
}

void RuleEditor::Redo() {
    StopDrawing();
    if (CanRedo()) {
        Show(history.Redo());
        Changed();
    }
}

void RuleEditor::MarkSaved() {
    history.MarkSaved();
    Changed();
}

bool RuleEditor::Load(const std::vector<Rule>& loaded, std::string& problem) {
    StopDrawing();
    if (!rules.Restore(loaded, problem)) {
        return false;
    }
    rules.Select(RuleSet::None);
    Settle();
    MarkSaved();
    return true;
}

/// States of the history were accepted before, so none is refused.
void RuleEditor::Show(const History::State& state) {
    const size_t selected = rules.Selected();
    const std::string name = selected != RuleSet::None ? rules.Entries()[selected].rule.name : std::string();
    std::string problem;
    if (!rules.Restore(state, problem)) {
        Say(problem);
    }
    rules.Select(rules.Find(name));
}

} // namespace rulecanvas::kit
