#pragma once

#include "shape/gesture_shape.h"
#include "shape/point_json.h"

namespace rulecanvas {

/// A figure that lives in an axis-parallel rectangle, drawn by dragging from one corner to the opposite one.
///
/// It has no points, or the four corners of its rectangle: top left, top right, bottom right, bottom left.
class CBoxShape : public CGestureShape {
  public:
    /// Appends the corners.
    void GetShapePoints(Points& out) const override {
        LockGuard guard(lock);
        out.insert(out.end(), figure.points.begin(), figure.points.end());
    }

  protected:
    Json::Value WriteGeometry() const override {
        return HasCorners() ? WriteDiagonal(figure.points, figure.fitted) : Json::Value();
    }
    CopyRule RuleOfCopying() const override { return CopyRule::Terminated; }

    bool HasCorners() const { return figure.points.size() == CornerCount; }
    /// Makes the corners those of the two points' rectangle, in the view. False, with nothing changed, when a side
    /// would be shorter than `minimumSide`.
    bool SpanCorners(const PointF& first, const PointF& second, const ClientRect& view, int minimumSide) {
        const ClientRect rect = SpanRectangle(first, second, view);
        const ViewSize size = SizeOf(rect);
        if (!SizeOf(view).Known() || size.width < minimumSide || size.height < minimumSide) {
            return false;
        }
        SetCorners(figure.points, rect);
        return true;
    }
};

} // namespace rulecanvas
