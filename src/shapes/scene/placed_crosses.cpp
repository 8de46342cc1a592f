#include "shapes/scene/placed_crosses.h"

namespace rulecanvas {
namespace {

constexpr double HitBoxHalfSide = 5.0;
constexpr Effect FinishKeepingMouse[] = {Effect::TellState, Effect::StopListening};

ClientRect HitBoxOf(const PointF& cross) {
    return ClientRect{TruncateToInt(cross.x - HitBoxHalfSide), TruncateToInt(cross.y - HitBoxHalfSide),
                      TruncateToInt(cross.x + HitBoxHalfSide), TruncateToInt(cross.y + HitBoxHalfSide)};
}

} // namespace

int CPlacedCrosses::CrossAt(const PointF& press) const {
    const Points& crosses = figure.points;
    for (size_t i = 0; i < crosses.size() && static_cast<int>(i) < Maximum(); ++i) {
        if (InRectangle(HitBoxOf(crosses[i]), press)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

Outcome CPlacedCrosses::ContinueDrawing(const PointerEvent& press) {
    const int count = static_cast<int>(figure.points.size());
    if (count > 0 && count >= Maximum()) {
        // the host lowered the maximum between two clicks
        return IsListening() ? Outcome{} : Outcome{Complete, effects::Tell};
    }
    if (!AcceptsPoint(press.position, press.view)) {
        return {};
    }
    figure.points.push_back(press.position);
    return Begin(Drawing);
}

/// The last cross stays where the button was released, be it outside the view.
Outcome CPlacedCrosses::EndDrawing(const PointerEvent& release) {
    if (!figure.points.empty()) {
        figure.points.back() = release.position;
    }
    if (static_cast<int>(figure.points.size()) < Maximum()) {
        return {std::nullopt, effects::StopListening};
    }
    return {Complete, FinishKeepingMouse};
}

Outcome CPlacedCrosses::EndAdjust(const PointerEvent& release) {
    if (PointF* cross = GrabbedCross()) {
        DropCross(*cross, release);
    }
    return {Complete, FinishKeepingMouse};
}

} // namespace rulecanvas
