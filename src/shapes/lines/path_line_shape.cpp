#include "shapes/lines/path_line_shape.h"

#include "shapes/lines/line_geometry.h"

#include <algorithm>

namespace rulecanvas {

CPathLineShape::CPathLineShape() : CLineShape(LineOrientation::Free) {}

size_t CPathLineShape::MaximumPoints() const {
    return std::max(LinePoints, static_cast<size_t>(std::max(0, maxPtNum.load())));
}

CVideoAnalyseShape* CPathLineShape::HitTestRButtonDown(const ContainerMouseEvent& /*event*/, int& hitLevel) {
    constexpr size_t shortestPath = 2;
    if (state != Drawing || PointCount() < shortestPath) {
        return nullptr;
    }
    hitLevel = Busy;
    return this;
}

void CPathLineShape::HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int hitLevel) {
    FinishByRightButton(hitLevel);
}

bool CPathLineShape::BuildDragPoints(int index, const PointF& current, Points& out) {
    out = CopyPoints();
    const auto vertex = static_cast<size_t>(index);
    if (index < 0 || vertex >= std::min(out.size(), MaximumPoints())) {
        return false;
    }
    KnownViewSize(); // a size that was unknown so far is taken over here, and the points are fitted from then on
    if (!AcceptsPoint(current)) {
        return false;
    }
    out[vertex] = current;
    return true;
}

} // namespace rulecanvas
