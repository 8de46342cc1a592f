#pragma once

#include "shapes/lines/line_family_shape.h"

#include <algorithm>

namespace rulecanvas {

/// A line that may bend: its points are placed release by release, until the right button or the last allowed point
/// finishes it. A dragged point goes where the mouse is and stops at the view's border.
class CPathLineShape : public CLineFamilyShape {
  public:
    CPathLineShape() {
        shapeType = FreeLineType;
        maxPtNum = LinePoints;
    }

    /// Offers the right button as soon as there is a path to finish.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& /*event*/, int& hitLevel) override {
        constexpr size_t shortestPath = 2;
        LockGuard guard(lock);
        if (state != Drawing || figure.points.size() < shortestPath) {
            return nullptr;
        }
        hitLevel = Busy;
        return this;
    }

    void HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int hitLevel) override {
        FinishByRightButton(hitLevel);
    }

  protected:
    /// Two at least, whatever the host asked for.
    size_t MaximumPoints() const override {
        return static_cast<size_t>(std::max(static_cast<int>(LinePoints), maxPtNum));
    }
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override {
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
};

} // namespace rulecanvas
