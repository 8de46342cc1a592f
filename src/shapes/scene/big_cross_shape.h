#pragma once

#include "shapes/scene/placed_crosses.h"

namespace rulecanvas {

/// Two cross-hairs whose lines span the whole picture, with a dot where they cross.
///
/// A configuration gives every cross-hair as two thin bands of the grid, one along each line; the cross-hair runs in
/// the middle of the band, one unit beside its border.
class CBigCrossShape final : public CPlacedCrosses {
  protected:
    int Maximum() const override { return CrossHairs; }
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    void DragCross(PointF& cross, const PointerEvent& position) override;
    void DropCross(PointF& cross, const PointerEvent& release) override;
    Points ReadCrosses(const Json::Value& member) override;
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

  private:
    static constexpr int CrossHairs = 2;
};

} // namespace rulecanvas
