#pragma once

#include "shapes/lines/path_line_shape.h"

namespace rulecanvas {

/// A direction of travel: a line, or with "XArrowLine" a path of up to 20 points, with an arrow head where `direction`
/// says.
class CArrowLineShape final : public CPathLineShape {
  public:
    /// Finishes only a path that whoever judges it accepts.
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;

  protected:
    /// Free in both directions, also for a horizon.
    bool MovePoints(float dx, float dy, const ClientRect& view) override;
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override;
    bool FitToPaint(const PaintPass& pass) override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

  private:
    template <class Change>
    bool ChangeChecked(Change change);
};

} // namespace rulecanvas
