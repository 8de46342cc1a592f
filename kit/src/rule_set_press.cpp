#include "strokes.hpp"

#include <algorithm>

namespace rulecanvas::kit {

namespace {

constexpr const char* PixelCounter = "PixelCountShape";
constexpr const char* Cross = "CrossShape";
constexpr const char* Spot = "SpotShape";

} // namespace

bool RuleSet::TakesPresses(const RuleEntry& entry) const {
    return entry.rule.enabled && entry.rule.visible && !entry.rule.locked;
}

/// All other figures are hidden for one paint.
RuleSet::Strokes RuleSet::StrokesOf(size_t index) const {
    Strokes strokes;
    for (size_t i = 0; i < entries.size(); ++i) {
        container.ShowShape(entries[i].shape, i == index);
    }
    container.Paint(entries[index].rule.view, strokes);
    for (const RuleEntry& entry : entries) {
        container.ShowShape(entry.shape, entry.rule.visible);
    }
    return strokes;
}

std::vector<PointF> RuleSet::Points(size_t index) const {
    const RuleEntry& entry = entries.at(index);
    if (entry.rule.type == PixelCounter) {
        const Strokes strokes = StrokesOf(index);
        const bool drawn = !strokes.rectangles.empty();
        return drawn ? std::vector<PointF>{strokes.rectangles[0].from, strokes.rectangles[0].to}
                     : std::vector<PointF>();
    }
    Rule shown = entry.rule;
    shown.configuration = entry.reported;
    return viewSize ? FigurePoints(shown, viewSize()) : std::vector<PointF>();
}

Grip RuleSet::GripOf(size_t index, PointF at) const {
    const RuleEntry& entry = entries.at(index);
    if (entry.state != RuleState::Complete || !TakesPresses(entry)) {
        return Grip::None;
    }
    return GripAt(entry.rule, Points(index), at);
}

size_t RuleSet::RuleAt(PointF at) const {
    const size_t selected = Selected();
    if (selected != None && GripOf(selected, at) != Grip::None) {
        return selected;
    }
    for (size_t i = entries.size(); i-- > 0;) {
        if (GripOf(i, at) != Grip::None) {
            return i;
        }
    }
    return None;
}

/// The library would give a press to the figure with the lowest identity, and a single cross takes every press: the
/// others are disabled for this one. Enabling selects, so the selection is put right afterwards.
void RuleSet::Press(MouseCode code, PointF at) {
    const size_t taker = RuleAt(at);
    const ShapeID wanted = taker != None ? entries[taker].shape : 0;
    std::vector<ShapeID> set;
    for (size_t i = 0; i < entries.size(); ++i) {
        const bool aside = taker != None ? i != taker : entries[i].rule.type == Cross;
        if (aside && TakesPresses(entries[i]) && entries[i].state == RuleState::Complete) {
            set.push_back(entries[i].shape);
            container.EnableShape(set.back(), false);
        }
    }
    container.SendMouse(code, taker != None ? entries[taker].rule.view : 0, at.x, at.y);
    for (const ShapeID shape : set) {
        container.EnableShape(shape, true);
        container.SelectShape(shape, false);
    }
    if (taker != None) {
        Select(IndexOf(wanted));
    } else if (code == MouseCode::LeftDown) {
        Select(None);
    }
}

void RuleSet::BeginGesture(Grip grip) {
    const size_t selected = Selected();
    if (selected != None && entries[selected].state == RuleState::Complete) {
        entries[selected].state = grip == Grip::Point ? RuleState::PointDragged : RuleState::BeingMoved;
    }
}

void RuleSet::SetBeingDrawn(bool begun) {
    const size_t unfinished = Unfinished();
    if (unfinished != None) {
        /// A spot is complete with its first press, without a word.
        const bool takesMore = entries[unfinished].rule.type != Spot;
        entries[unfinished].state = begun && takesMore ? RuleState::BeingDrawn : RuleState::Waiting;
    }
}

void RuleSet::EndGesture() {
    for (RuleEntry& entry : entries) {
        const bool gesture = entry.state == RuleState::BeingMoved || entry.state == RuleState::PointDragged;
        entry.state = gesture ? RuleState::Complete : entry.state;
    }
}

bool RuleSet::HasLineFrom(size_t index, PointF at) const {
    const Strokes strokes = StrokesOf(index);
    return std::any_of(strokes.lines.begin(), strokes.lines.end(),
                       [at](const Strokes::Pair& line) { return line.from.x == at.x && line.from.y == at.y; });
}

} // namespace rulecanvas::kit
