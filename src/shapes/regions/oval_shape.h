#pragma once

#include "shapes/regions/box_shape.h"

namespace rulecanvas {

/// An ellipse inscribed in its box. Presses are judged by the box, not by the ellipse. Eight handles, the corners and
/// the middles of the edges, resize it.
///
/// `anchorPoint` is the press while the oval is drawn, the last accepted mouse position while it is moved, and the
/// fixed corner while it is resized; `lastPoint` is where the mouse is while it is drawn, then where it was released.
class COvalShape final : public CBoxShape {
  public:
    /// Forgets the figure alone: an oval is cleared only on its way out, which ends its gesture too.
    void ClearShape() override;
    /// An oval stays as it is: to draw another one, the host makes a new shape.
    bool RestartDrawing() override;
    bool AwaitsPaint() const override { return false; }

  protected:
    Outcome StartDrawing(const PointerEvent& press) override;
    Outcome DrawTo(const PointerEvent& position) override;
    Outcome EndDrawing(const PointerEvent& release) override;
    Outcome ResumeDrawing(const PointerEvent& position) override;
    Outcome FinishWaiting(const PointerEvent& release) override;
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    Outcome MoveTo(const PointerEvent& position) override;
    Outcome EndMove(const PointerEvent& release) override;
    Outcome AdjustTo(const PointerEvent& position) override;
    Outcome EndAdjust(const PointerEvent& release) override;
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override;

    bool TakesStyle() const override { return false; }
    std::string GeometryKey() const override;
    Refused Load(Loading& loading) override;
    int LevelAt(const PointF& press) override;
    /// A press during a drag of the finished oval is nothing to it.
    bool IsBusy() const override { return state == Waiting || state == Drawing; }
    Claim CompleteClaim() const override;
    /// In every view. A hidden oval still shows as long as its last drag has an extent, so that the user sees what the
    /// mouse does.
    bool IsShownIn(ViewID view) const override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;
    void TellState(int previousState, int newState) override;

  private:
    /// The coordinate that stays while a handle in the middle of an edge is dragged.
    PointF edgeFixPoint{};
};

} // namespace rulecanvas
