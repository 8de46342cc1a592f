#include <rulecanvas_kit/rule_editor.hpp>

#include <rulecanvas_kit/figure_types.hpp>

#include "plane.hpp"

#include <algorithm>
#include <cmath>

namespace rulecanvas::kit {

namespace {

constexpr float CloseDistance = 6.0F;
constexpr float LeastStep = 6.0F;

bool IsClosed(const Rule& rule) {
    return rule.type == "Polygon" || rule.type == "VirablePolygon";
}

bool IsNear(PointF a, PointF b, float distance) {
    return std::fabs(a.x - b.x) < distance && std::fabs(a.y - b.y) < distance;
}

} // namespace

bool RuleEditor::StartDrawing(const Rule& look, bool keep, std::string& problem) {
    problem = OptionProblem(look.type, look.option);
    if (!problem.empty()) {
        return false;
    }
    if (rules.Find(look.name) != RuleSet::None && rules.Find(look.name) != rules.Unfinished()) {
        problem = "there is a rule named \"" + look.name + "\"";
        return false;
    }
    StopDrawing();
    Rule rule = look;
    rule.configuration.clear();
    if (rule.name.empty()) {
        rule.name = FreeName(rule.type);
    }
    if (!rules.Add(rule, problem)) {
        return false;
    }
    drawn = look;
    drawn.name.clear();
    drawing = true;
    keepDrawing = keep;
    rules.Select(rules.Entries().size() - 1);
    Changed();
    return true;
}

void RuleEditor::StopDrawing() {
    if (!drawing) {
        return;
    }
    rules.Remove(rules.Unfinished());
    LetMouseGo();
    drawing = false;
    keepDrawing = false;
    corners.clear();
    Changed();
}

const Rule* RuleEditor::Drawing() const {
    return drawing ? &drawn : nullptr;
}

bool RuleEditor::BeingDrawn() const {
    const size_t index = rules.Unfinished();
    return index != RuleSet::None && rules.Entries()[index].state == RuleState::BeingDrawn;
}

bool RuleEditor::DrawsCorners() const {
    return drawing && GestureOf(drawn) == Gesture::Corners;
}

/// An oval that was begun by a click follows the pointer to a second one.
bool RuleEditor::AlsoByClicks() const {
    return drawn.type == "OvalShape";
}

size_t RuleEditor::LeastCorners() const {
    const FigureType* const type = FindFigureType(drawn.type);
    const size_t least = type != nullptr ? type->leastCorners : 0;
    const size_t wanted = drawn.pointLimits ? static_cast<size_t>(std::max(drawn.pointLimits->minimum, 0)) : 0;
    return std::max(least, IsClosed(drawn) ? wanted : 0);
}

bool RuleEditor::NearFirstCorner(PointF at) const {
    return !corners.empty() && IsNear(corners[0], at, CloseDistance);
}

/// A shape says nothing when it refuses a corner, but it draws its free edge from the last one that it took.
void RuleEditor::NoticeCorner(PointF at) {
    const size_t index = rules.Unfinished();
    if (index == RuleSet::None || rules.Entries()[index].state != RuleState::BeingDrawn) {
        return;
    }
    container.SendMouse(MouseCode::Moved, 0, at.x, at.y);
    if (corners.empty() || rules.HasLineFrom(index, at)) {
        corners.push_back(corners.empty() ? pressed : at);
    } else {
        Say(CornerRefusal(at));
    }
}

std::string RuleEditor::CornerRefusal(PointF at) const {
    if (IsNear(corners.back(), at, LeastStep)) {
        return "Too near to the last corner";
    }
    if (drawn.option == "Convex") {
        return "No corner there: the figure must bulge outwards everywhere";
    }
    return "No corner there: edges may not cross";
}

void RuleEditor::SayWhyNotMoved(PointF at) {
    if (IsNear(pressed, at, LeastStep)) {
        return;
    }
    const size_t selected = rules.Selected();
    const bool polygon = selected != RuleSet::None && IsClosed(rules.Entries()[selected].rule);
    Say(polygon ? "The corner stays: edges may not cross, and a convex figure stays convex"
                : "The point stays: it cannot go there");
}

void RuleEditor::CloseDrawing() {
    if (!DrawsCorners() || !BeingDrawn()) {
        return;
    }
    if (corners.size() < LeastCorners()) {
        Say("It needs " + std::to_string(LeastCorners()) + " corners; there are " + std::to_string(corners.size()));
        return;
    }
    if (IsClosed(drawn) && ClosingEdgeCrosses(corners)) {
        Say("It cannot be closed: the last edge would cross another. Backspace takes the last corner back");
        return;
    }
    const PointF last = corners.back();
    container.SendMouse(MouseCode::RightDown, 0, last.x, last.y);
    RightUp(last);
    Settle();
}

/// The library starts the figure over, and gets the clicks but the last again.
void RuleEditor::TakeBackCorner() {
    if (!DrawsCorners() || corners.empty()) {
        return;
    }
    std::vector<PointF> kept = corners;
    kept.pop_back();
    const PointF free = pointer;
    quiet = true;
    RestartDrawing();
    for (const PointF& corner : kept) {
        container.SendMouse(MouseCode::Moved, 0, corner.x, corner.y);
        container.SendMouse(MouseCode::LeftDown, 0, corner.x, corner.y);
        container.SendMouse(MouseCode::LeftUp, 0, corner.x, corner.y);
    }
    quiet = false;
    rules.SetBeingDrawn(!kept.empty());
    corners = std::move(kept);
    Move(free);
    Changed();
}

/// An oval does not start over when it is told to; a shape made anew does.
void RuleEditor::RestartDrawing() {
    const size_t index = rules.Unfinished();
    std::string problem;
    if (index != RuleSet::None && !rules.Replace(index, Rule(rules.Entries()[index].rule), problem)) {
        Say(problem);
    }
    rules.Select(index);
    LetMouseGo();
    corners.clear();
}

std::string RuleEditor::Help() const {
    if (!drawing) {
        const size_t selected = rules.Selected();
        return selected == RuleSet::None
                   ? "Choose a tool to draw, or click a figure to change it"
                   : "Drag the figure or its handles; arrow keys move it, Delete removes it, right "
                     "button for more";
    }
    const bool begun = BeingDrawn();
    switch (GestureOf(drawn)) {
    case Gesture::Box:
        return begun ? "Release at the opposite corner; Escape starts over"
                     : "Press at one corner and drag to the opposite one";
    case Gesture::Line:
        return begun ? "Release at the end, or click it; Escape starts over" : "Press at the start and drag to the end";
    case Gesture::Places:
        return begun ? "Click the next place; Escape starts over" : "Click the place";
    default:
        break;
    }
    if (corners.size() >= LeastCorners() && begun) {
        return "Click the next corner; right button, Enter, double click or the first corner closes; Backspace takes "
               "back";
    }
    return begun ? "Click the next corner; Backspace takes the last one back, Escape starts over"
                 : "Click the first corner";
}

} // namespace rulecanvas::kit
