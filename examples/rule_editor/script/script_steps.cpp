#include "script/input.hpp"
#include "script/png.hpp"
#include "script/script_player.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace rule_editor {

using rulecanvas::kit::Colour;
using rulecanvas::kit::PointLimits;
using rulecanvas::kit::Rule;
using rulecanvas::kit::RuleSet;

namespace {

constexpr int UsualDragSteps = 8;
constexpr const char* Pointer = "pointer";

} // namespace

void ScriptPlayer::Tool(const ScriptStep& step) {
    Rule rule = settings;
    settings = {};
    if (step.words[0] == Pointer) {
        window.StartTool("", false);
        return;
    }
    rule.type = step.words[0];
    if (rule.configuration.empty()) {
        window.SetNextRule(rule);
        if (!window.StartTool(rule.type, false)) {
            throw std::runtime_error(window.Line().Refusal());
        }
        return;
    }
    window.StartTool("", false);
    window.SetNextRule({});
    rule.name = rule.name.empty() ? window.Rules().FreeName(rule.type) : rule.name;
    std::string problem;
    if (!window.Rules().Add(rule, problem)) {
        throw std::runtime_error("the rule is refused: " + problem);
    }
}

void ScriptPlayer::Setting(const ScriptStep& step) {
    static const std::map<std::string, std::string Rule::*> members = {
        {"name", &Rule::name}, {"label", &Rule::label}, {"caption", &Rule::caption}, {"option", &Rule::option}};
    settings.*members.at(step.command) = step.text;
    window.SetNextRule(settings);
}

void ScriptPlayer::Config(const ScriptStep& step) {
    settings.configuration = step.text;
}

void ScriptPlayer::Mouse(const ScriptStep& step) {
    const int x = NumberAt(step, 0);
    const int y = NumberAt(step, 1);
    const std::string& command = step.command;
    if (command == "move") {
        Post(WM_MOUSEMOVE, 0, x, y);
    } else if (command == "press") {
        Post(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
    } else if (command == "release") {
        Post(WM_LBUTTONUP, 0, x, y);
    } else if (command == "rclick") {
        Post(WM_RBUTTONDOWN, MK_RBUTTON, x, y);
        Post(WM_RBUTTONUP, 0, x, y);
    } else {
        PostClick(window.View().Handle(), {x, y}, VideoView::Scripted, command == "dblclick");
    }
}

void ScriptPlayer::Drag(const ScriptStep& step) {
    const int x1 = NumberAt(step, 0);
    const int y1 = NumberAt(step, 1);
    const int x2 = NumberAt(step, 2);
    const int y2 = NumberAt(step, 3);
    const int moves = step.words.size() > 4 ? std::clamp(NumberAt(step, 4), 1, 1000) : UsualDragSteps;
    Post(WM_LBUTTONDOWN, MK_LBUTTON, x1, y1);
    for (int i = 1; i <= moves; ++i) {
        Post(WM_MOUSEMOVE, MK_LBUTTON, x1 + (x2 - x1) * i / moves, y1 + (y2 - y1) * i / moves);
    }
    Post(WM_LBUTTONUP, 0, x2, y2);
}

void ScriptPlayer::Change(size_t rule, const Rule& changed) {
    std::string problem;
    if (!window.Rules().Change(rule, changed, problem)) {
        throw std::runtime_error(problem);
    }
}

void ScriptPlayer::Select(const ScriptStep& step) {
    window.Rules().Select(step.text.empty() ? RuleSet::None : RuleNamed(step.text));
}

void ScriptPlayer::Direction(const ScriptStep& step) {
    Rule rule = window.Rules().Rules().Entries()[RequiredRule()].rule;
    rule.direction = NumberAt(step, 0);
    Change(RequiredRule(), rule);
}

void ScriptPlayer::ChooseColour(const ScriptStep& step) {
    const std::string& which = step.words[0];
    if (which != "selected" && which != "unselected") {
        throw std::runtime_error("colour takes \"selected\" or \"unselected\" and three numbers");
    }
    Rule rule = window.Rules().Rules().Entries()[RequiredRule()].rule;
    (which == "selected" ? rule.selectedColour : rule.unselectedColour) =
        Colour{NumberAt(step, 1), NumberAt(step, 2), NumberAt(step, 3)};
    Change(RequiredRule(), rule);
}

void ScriptPlayer::Limits(const ScriptStep& step) {
    Rule rule = window.Rules().Rules().Entries()[RequiredRule()].rule;
    rule.pointLimits = PointLimits{NumberAt(step, 0), NumberAt(step, 1)};
    Change(RequiredRule(), rule);
}

void ScriptPlayer::ShowOrHide(const ScriptStep& step) {
    const size_t index = step.text.empty() ? RequiredRule() : RuleNamed(step.text);
    const Rule& rule = window.Rules().Rules().Entries()[index].rule;
    window.Rules().SetFlags(index, rule.enabled, step.command == "show", rule.locked);
}

void ScriptPlayer::DeleteRule(const ScriptStep& step) {
    window.Rules().Delete(step.text.empty() ? RequiredRule() : RuleNamed(step.text));
}

void ScriptPlayer::Clear(const ScriptStep&) {
    window.Rules().Clear();
}

void ScriptPlayer::Tip(const ScriptStep& step) {
    window.Rules().Library().SetTip(0, step.text.c_str());
    window.View().Redraw();
}

void ScriptPlayer::Resize(const ScriptStep& step) {
    window.ResizeClient({NumberAt(step, 0), NumberAt(step, 1)});
}

void ScriptPlayer::ShowFrame(const ScriptStep& step) {
    window.View().ShowFrame(std::max(NumberAt(step, 0), 0));
}

void ScriptPlayer::Snapshot(const ScriptStep& step) {
    const std::string& name = step.words[0];
    WritePng(Screenshot(window.Handle()), InFolder(name + ".png"));
    const rulecanvas::kit::BackBuffer& shown = window.View().Picture();
    GdiFlush();
    Frame& picture = pictures[name];
    picture.Resize(shown.PictureSize());
    picture.pixels.assign(shown.Pixels(), shown.Pixels() + shown.PixelCount());
}

void ScriptPlayer::Save(const ScriptStep& step) {
    window.SaveTo(InFolder(step.words[0]));
}

void ScriptPlayer::Load(const ScriptStep& step) {
    window.LoadFrom(InFolder(step.words[0]));
}

void ScriptPlayer::WriteFile(const ScriptStep& step) {
    std::ofstream file(std::filesystem::path(InFolder(step.words[0])), std::ios::binary);
    file << step.text.substr(step.text.find(' ') + 1);
}

void ScriptPlayer::Post(UINT message, WPARAM buttons, int x, int y) const {
    PostMouse(window.View().Handle(), message, x, y, buttons | VideoView::Scripted);
}

size_t ScriptPlayer::RuleNamed(const std::string& name) const {
    const size_t rule = window.Rules().Rules().Find(name);
    if (rule == RuleSet::None) {
        throw std::runtime_error("there is no rule named " + name);
    }
    return rule;
}

/// The selected rule, else the last.
size_t ScriptPlayer::RequiredRule() const {
    const RuleSet& rules = window.Rules().Rules();
    if (rules.Entries().empty()) {
        throw std::runtime_error("there is no rule");
    }
    return rules.Selected() != RuleSet::None ? rules.Selected() : rules.Entries().size() - 1;
}

} // namespace rule_editor
