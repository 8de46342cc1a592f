#pragma once

#include "shapes/lines/path_line_shape.h"

namespace rulecanvas {

/// A direction of travel: a line, or with "XArrowLine" a path of up to 20 points, with an arrow head where `direction`
/// says.
class CArrowLineShape : public CPathLineShape {
  public:
    /// Finishes only a path that whoever judges it accepts.
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;
    /// Free in both directions, also for a horizon.
    bool MoveShape(float dx, float dy) override;
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;

  protected:
    bool AcceptsMoved(const Points& moved) const override;
    void PrepareToDraw() override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    bool PassesChecks(const Points& path) const;
    void DrawHead(const ShapeLook& look, IContainerGraphics& surface) const;
};

} // namespace rulecanvas
