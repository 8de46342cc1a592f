#pragma once

#include "geometry/grid.h"

#include <json/value.h>

namespace rulecanvas {

/// The pixels of an [x, y] pair of whole grid numbers. What JsonCpp cannot convert raises its error.
PointF ReadPoint(const Json::Value& pair, const ViewSize& view);

/// The same for a pair of numbers that may have fractions.
PointF ReadRealPoint(const Json::Value& pair, const ViewSize& view);

/// The [x, y] pair of whole grid numbers of a point.
Json::Value WritePoint(const PointF& point, const ViewSize& view);

Json::Value WritePoints(const Points& points, const ViewSize& view);

/// The first and the third of four corners, in whole pixels.
Json::Value WriteDiagonal(const Points& corners, const ViewSize& view);

} // namespace rulecanvas
