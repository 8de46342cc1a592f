#pragma once

#include "shapes/scene/placed_crosses.h"

namespace rulecanvas {

/// Small crosses, one unless the mode word, the configuration or the host asks for more, with the caption at the first.
///
/// A single cross needs no aim: a press anywhere in the view takes it there.
class CCrossShape final : public CPlacedCrosses {
  public:
    CCrossShape();

  protected:
    int Maximum() const override { return maxPtNum; }
    int CrossAt(const PointF& press) const override;
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    void DragCross(PointF& cross, const PointerEvent& position) override;
    void DropCross(PointF& /*cross*/, const PointerEvent& /*release*/) override {}
    /// The number of crosses.
    void ReadWord(const char* option) override;
    Points ReadCrosses(const Json::Value& member) override;
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    Claim CompleteClaim() const override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

  private:
    bool IsSingle() const { return Maximum() == 1 && !figure.points.empty(); }
};

} // namespace rulecanvas
