#include "shape/point_json.h"

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

Json::Value WritePoints(const Points& points, const ViewSize& view) {
    Json::Value array(Json::arrayValue);
    for (const PointF& point : points) {
        array.append(WritePoint(point, view));
    }
    return array;
}

Json::Value WriteDiagonal(const Points& corners, const ViewSize& view) {
    return WritePoints(Truncated({corners[0], corners[2]}), view);
}

} // namespace rulecanvas
