#include "shapes/lines/crossing_mark.h"

namespace rulecanvas {

bool SideAIsUpper(const PointF& from, const PointF& to) {
    return from.x < to.x || (from.x == to.x && to.y < from.y);
}

CrossingArrowList CrossingArrows(const PointF& from, const PointF& to, const CrossStroke& stroke, int direction) {
    const bool aIsUpper = SideAIsUpper(from, to);
    const CrossingArrow aToB =
        aIsUpper ? CrossingArrow{stroke.upper, stroke.lower} : CrossingArrow{stroke.lower, stroke.upper};
    const CrossingArrow bToA{aToB.tip, aToB.tail};
    // On a segment drawn straight up both arrows point from A to B: stored rules were drawn against this picture.
    const bool straightUp = from.x == to.x && aIsUpper;

    CrossingArrowList arrows;
    if (direction != CrossingBToA) {
        arrows.Add(aToB);
    }
    if (direction != CrossingAToB) {
        arrows.Add(straightUp ? aToB : bToA);
    }
    return arrows;
}

} // namespace rulecanvas
