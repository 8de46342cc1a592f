#include "shapes/regions/box_shape.h"

#include "shape/point_json.h"

namespace rulecanvas {

void CBoxShape::GetShapePoints(Points& out) const {
    platform::LockGuard guard(lock);
    out.insert(out.end(), figure.points.begin(), figure.points.end());
}

Json::Value CBoxShape::WriteGeometry(const Points& points, const ViewSize& view) const {
    return points.size() < CornerCount ? Json::Value() : WriteDiagonal(points, view);
}

bool CBoxShape::SpanCorners(const PointF& first, const PointF& second, const ClientRect& view, int minimumSide) {
    const ClientRect rect = SpanRectangle(first, second, view).rect;
    const ViewSize size = SizeOf(rect);
    if (!SizeOf(view).Known() || size.width < minimumSide || size.height < minimumSide) {
        return false;
    }
    SetCorners(figure.points, rect);
    return true;
}

} // namespace rulecanvas
