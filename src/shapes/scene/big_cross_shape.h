#pragma once

#include "shapes/scene/placed_crosses.h"

namespace rulecanvas {

/// Two cross-hairs whose lines span the whole picture, with a dot where they cross.
///
/// A configuration gives every cross-hair as two thin bands of the grid, one along each line; the cross-hair runs in
/// the middle of the band, one unit beside its border.
class CBigCrossShape : public CPlacedCrosses {
  protected:
    int Maximum() const override { return CrossHairs; }
    void StartEditing(const PointF& press, int hitLevel) override;
    bool DragCross(const PointF& position) override;
    void DropCross(const PointF& position) override;
    bool ReadCrosses(const Json::Value& member, const ViewSize& view, Points& crosses) override;
    Json::Value WriteCrosses(const Points& crosses, const ViewSize& view) const override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    static constexpr int CrossHairs = 2;
};

} // namespace rulecanvas
