#include "shapes/lines/path_line_shape.h"

#include "shapes/lines/line_geometry.h"

#include <algorithm>

namespace rulecanvas {

using platform::LockGuard;

namespace {

/// Of every line that is not tied to a direction.
constexpr int FreeLineType = 1;

} // namespace

CPathLineShape::CPathLineShape() {
    shapeType = FreeLineType;
    maxPtNum = LinePoints;
}

size_t CPathLineShape::MaximumPoints() const {
    return std::max(LinePoints, static_cast<size_t>(std::max(0, maxPtNum)));
}

CVideoAnalyseShape* CPathLineShape::HitTestRButtonDown(const ContainerMouseEvent& /*event*/, int& hitLevel) {
    constexpr size_t shortestPath = 2;
    LockGuard guard(lock);
    if (state != Drawing || figure.points.size() < shortestPath) {
        return nullptr;
    }
    hitLevel = Busy;
    return this;
}

void CPathLineShape::HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int hitLevel) {
    FinishByRightButton(hitLevel);
}

bool CPathLineShape::DragPoint(int index, const PointF& to, const ClientRect& view) {
    const auto vertex = static_cast<size_t>(index);
    if (index < 0 || vertex >= std::min(figure.points.size(), MaximumPoints())) {
        return false;
    }
    LearnViewSize(view); // the points are fitted from here on
    if (!AcceptsPoint(to, view)) {
        return false;
    }
    figure.points[vertex] = to;
    return true;
}

} // namespace rulecanvas
