#pragma once

#include "geometry/points.h"

#include <cstddef>

namespace rulecanvas {

/// How many points make a line.
constexpr size_t LinePoints = 2;

/// The line through two points, from x = 0 to x = 8191 (a vertical one: y). The grid's span is taken for pixels, so
/// that the line reaches across a view of any size. Two equal points stay as they are.
Points ExtendedAcrossGrid(const Points& line);

/// Whether the segment touches or crosses the open path.
bool CrossesPath(const PointF& a, const PointF& b, const Points& path);

/// The first two places where the endless line through a and b meets the outline of the ring. A corner belongs to two
/// edges but is one place.
Points MeetingsWithRing(const PointF& a, const PointF& b, const Points& ring);

} // namespace rulecanvas
