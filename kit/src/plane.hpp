/// Geometry of points, with the tolerances that the library itself uses.
#ifndef RULECANVAS_KIT_PLANE_HPP
#define RULECANVAS_KIT_PLANE_HPP

#include <rulecanvas/rulecanvas.h>

#include <vector>

namespace rulecanvas::kit {

/// Within 4 pixels on each axis of one of the points.
bool NearAny(const std::vector<PointF>& points, PointF at);
/// Within 3 pixels of a segment of the open path.
bool OnPath(const std::vector<PointF>& path, PointF at);
/// By the winding number.
bool InRing(const std::vector<PointF>& ring, PointF at);
/// Whether the segments a-b and c-d cross or touch.
bool SegmentsMeet(PointF a, PointF b, PointF c, PointF d);

} // namespace rulecanvas::kit

#endif
