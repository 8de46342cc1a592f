#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// One place in the picture, marked with a small circle that the user places with a click and can drag around, and with
/// the caption beside it.
///
/// It has one point or none. `anchorPoint` is the last accepted mouse position while it is dragged.
class CSpotShape final : public CGestureShape {
  public:
    CSpotShape();

    bool AwaitsPaint() const override { return false; }

  protected:
    Outcome StartDrawing(const PointerEvent& press) override;
    Outcome DrawTo(const PointerEvent& /*position*/) override { return {}; }
    Outcome EndDrawing(const PointerEvent& /*release*/) override { return {}; }
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    /// The spot goes where the mouse is, as far as the view reaches.
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override;

    void Dispose() override;
    bool TakesStyle() const override { return false; }
    /// "solid" fills the circle, and stays in force for later configurations that do not name it.
    void ReadWord(const char* option) override;
    Refused Load(Loading& loading) override;
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    CopyRule RuleOfCopying() const override { return CopyRule::ZeroUncounted; }
    int LevelAt(const PointF& press) override;
    Claim CompleteClaim() const override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

  private:
    bool Covers(const PointF& press) const;
    void DrawCaption(const ShapeLook& look, IContainerGraphics& surface) const;

    /// Pixels.
    int radius = 5;
    bool solid = false;
};

} // namespace rulecanvas
