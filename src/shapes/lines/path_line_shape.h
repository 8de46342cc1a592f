#pragma once

#include "shapes/lines/line_shape.h"

namespace rulecanvas {

/// A line that may bend: its points are placed release by release, until the right button or the last allowed point
/// finishes it. A dragged point goes where the mouse is and stops at the view's border.
class CPathLineShape : public CLineShape {
  public:
    CPathLineShape();

    /// Offers the right button as soon as there is a path to finish.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;
    /// The points with one of them at `current`; false when it may not be there.
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;

  protected:
    /// Two at least, whatever the host asked for.
    size_t MaximumPoints() const override;
};

} // namespace rulecanvas
