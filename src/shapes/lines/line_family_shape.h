#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// A line that is drawn point by point.
///
/// The first press places the first point; every release offers a further one, so that both press-drag-release and
/// click-click draw a segment. It is complete with its last allowed point. While it is drawn, `lastPoint` is the free
/// end of the rubber line; while it is moved, `anchorPoint` is the last mouse position.
///
/// A horizon is level and moves up and down only; a moved horizontal line does so too, and its ends cannot be dragged.
class CLineFamilyShape : public CGestureShape {
  public:
    void RemoveSubShape(ShapeID id) override;
    /// Takes exactly two points.
    void SetShapePoints(Points newPoints) override;

  protected:
    Outcome StartDrawing(const PointerEvent& press) override;
    Outcome DrawTo(const PointerEvent& position) override;
    Outcome EndDrawing(const PointerEvent& event) override;
    int LevelAt(const PointF& press) override;
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    Outcome MoveTo(const PointerEvent& position) override;
    Outcome EndMove(const PointerEvent& release) override;
    Outcome AdjustTo(const PointerEvent& position) override;
    Outcome EndAdjust(const PointerEvent& release) override;
    bool MovePoints(float dx, float dy, const ClientRect& view) override;
    void Forget() override;

    /// How many points the line may have.
    virtual size_t MaximumPoints() const = 0;
    /// Where a second point goes that is offered at `point`.
    virtual PointF Oriented(const PointF& point, const PointF& other) const;
    /// Whether a line from `first` may have a point there.
    virtual bool IsWithinLimit(const PointF& first, const PointF& point) const;

    void ReadWord(const char* option) override;
    Refused Load(Loading& loading) override;
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    CopyRule RuleOfCopying() const override { return CopyRule::Line; }

    bool horizon = false;
    bool movedHLine = false;

  private:
    PointF Released(const PointerEvent& release) const;
    bool OfferPoint(const PointF& point, const ClientRect& view);
    void AdjustEndpoint(const PointerEvent& position);
};

} // namespace rulecanvas
