#pragma once

#include "geometry/points.h"

namespace rulecanvas {

/// The two ends of an arrow's barbs at the tip `b` of the shaft from `a`.
struct ArrowBarbs {
    PointF first;
    PointF second;
};

/// Arrow heads and direction arrows round pi differently. Both roundings are part of how figures look, to the last bit,
/// and are not to be unified.
double ArrowHeadHalfAngle();
double DirectionArrowHalfAngle();

ArrowBarbs BarbsOf(PointF a, const PointF& b, double halfAngle);

/// Ends of the stroke that crosses the segment at its middle: `upper` lies above (left of a vertical segment).
struct CrossStroke {
    PointF upper;
    PointF lower;
};

CrossStroke DirectionMarkOf(const PointF& a, const PointF& b);

} // namespace rulecanvas
