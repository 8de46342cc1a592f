#pragma once

#include "geometry/points.h"

namespace rulecanvas {

/// Farther than any of these tests reaches beyond the points themselves, in pixels.
constexpr float HitReach = 6.0F;

bool NearPoint(const PointF& p, const PointF& q);

/// Index of the first point near `p`, or -1.
int VertexIndex(PointSpan points, const PointF& p);

bool NearSegment(const PointF& a, const PointF& b, const PointF& p);

/// Near any edge of the open path.
bool OnPath(const Points& path, const PointF& p);

/// Near a vertex or any edge of the closed ring.
bool OnRing(const Points& ring, const PointF& p);

/// Positive, zero or negative: the side of the line from `a` to `b` on which `p` lies.
double ExactSide(const PointF& a, const PointF& b, const PointF& p);
/// The same rounded, as hits are judged: what lies less than a unit off the line is on it.
inline int SideOfLine(const PointF& a, const PointF& b, const PointF& p) {
    return TruncateToInt(ExactSide(a, b, p));
}

/// Non-zero winding number over the closed ring.
bool InPolygon(const Points& ring, const PointF& p);

} // namespace rulecanvas
