#include "shape/point_json.h"

#include "shape/geometry.h"
#include "shape/json_text.h"

#include <algorithm>

namespace rulecanvas {

PointF ReadPoint(const Json::Value& pair, const ViewSize& view) {
    return ToPixels(pair[0].asInt(), pair[1].asInt(), view);
}

PointF ReadRealPoint(const Json::Value& pair, const ViewSize& view) {
    return ToPixels(pair[0].asDouble(), pair[1].asDouble(), view);
}

Json::Value WritePoint(const PointF& point, const ViewSize& view) {
    const GridPoint grid = ToGrid(point, view);
    Json::Value pair(Json::arrayValue);
    pair.append(grid.x);
    pair.append(grid.y);
    return pair;
}

std::string PointsText(const std::string& key, const Points& points, const ViewSize& view) {
    Json::Value root(Json::objectValue);
    Json::Value& array = root[key] = Json::Value(Json::arrayValue);
    for (const PointF& point : points) {
        array.append(WritePoint(point, view));
    }
    return WriteJson(root);
}

Points Truncated(Points points) {
    std::transform(points.begin(), points.end(), points.begin(), WholePixels);
    return points;
}

} // namespace rulecanvas
