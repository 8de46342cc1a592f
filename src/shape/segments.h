#pragma once

#include "shape/types.h"

#include <optional>

namespace rulecanvas {

/// Whether two segments have a point in common; touching counts.
bool SegmentsCross(const PointF& a, const PointF& b, const PointF& c, const PointF& d);

/// Where the infinite lines through a, b and through c, d meet; nothing for parallel ones.
std::optional<PointF> LineIntersection(const PointF& a, const PointF& b, const PointF& c, const PointF& d);

/// Whether no edge of the closed ring has vertices strictly on both of its sides. Fewer than four points always are.
bool IsConvex(const Points& ring);

} // namespace rulecanvas
