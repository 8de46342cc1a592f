#pragma once

#include "shapes/lines/line_family_shape.h"

namespace rulecanvas {

/// A line that may bend: its points are placed release by release, until the right button or the last allowed point
/// finishes it. A dragged point goes where the mouse is and stops at the view's border.
class CPathLineShape : public CLineFamilyShape {
  public:
    CPathLineShape();

    /// Offers the right button as soon as there is a path to finish.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;

  protected:
    /// Two at least, whatever the host asked for.
    size_t MaximumPoints() const override;
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override;
};

} // namespace rulecanvas
