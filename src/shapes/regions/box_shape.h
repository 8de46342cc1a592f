#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// A figure that lives in an axis-parallel rectangle, drawn by dragging from one corner to the opposite one.
///
/// It has no points, or the four corners of its rectangle: top left, top right, bottom right, bottom left.
class CBoxShape : public CGestureShape {
  public:
    /// Appends the corners.
    void GetShapePoints(Points& out) const override;

  protected:
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    CopyRule RuleOfCopying() const override { return CopyRule::Terminated; }

    bool HasCorners() const { return figure.points.size() == CornerCount; }
    /// Makes the corners those of the two points' rectangle, in the view. False, with nothing changed, when a side
    /// would be shorter than `minimumSide`.
    bool SpanCorners(const PointF& first, const PointF& second, const ClientRect& view, int minimumSide);
};

} // namespace rulecanvas
