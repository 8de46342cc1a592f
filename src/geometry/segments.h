#pragma once

#include "geometry/points.h"

#include <optional>

namespace rulecanvas {

/// Whether two segments have a point in common; touching counts.
bool SegmentsCross(const PointF& a, const PointF& b, const PointF& c, const PointF& d);

/// Where the infinite lines through a, b and through c, d meet; nothing for parallel ones.
std::optional<PointF> LineIntersection(const PointF& a, const PointF& b, const PointF& c, const PointF& d);

/// Whether no edge of the closed ring has vertices strictly on both of its sides. Fewer than four points always are.
bool IsConvex(const Points& ring);

/// Whether the last edge of an open path touches an earlier one, the one it continues aside.
bool LastEdgeCrosses(const Points& path);

/// Whether the edge from the last point of a path back to its first touches an edge of the path, the first and the last
/// one aside.
bool ClosingEdgeCrosses(const Points& path);

/// Whether an edge at the vertex touches an edge of the closed ring that it shares no vertex with.
bool VertexCrosses(const Points& ring, size_t vertex);

/// Whether any two edges of the closed ring touch that share no vertex.
bool RingCrosses(const Points& ring);

} // namespace rulecanvas
