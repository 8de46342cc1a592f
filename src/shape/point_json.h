#pragma once

#include "shape/grid.h"

#include <json/value.h>

namespace rulecanvas {

/// The pixels of an [x, y] pair of whole grid numbers. What JsonCpp cannot convert raises its error.
PointF ReadPoint(const Json::Value& pair, const ViewSize& view);

/// The same for a pair of numbers that may have fractions.
PointF ReadRealPoint(const Json::Value& pair, const ViewSize& view);

/// The [x, y] pair of whole grid numbers of a point.
Json::Value WritePoint(const PointF& point, const ViewSize& view);

/// One line of JSON: an object with one member, the array of the points.
std::string PointsText(const std::string& key, const Points& points, const ViewSize& view);

/// The points in whole pixels, as some shapes round before they write.
Points Truncated(Points points);

} // namespace rulecanvas
