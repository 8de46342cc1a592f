#pragma once

#include "shape/gesture_shape.h"
#include "shape/point_json.h"
#include "shape/text.h"
#include "shapes/lines/line_geometry.h"

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
    void RemoveSubShape(ShapeID /*id*/) override { ClearShape(); }

  protected:
    Outcome StartDrawing(const PointerEvent& press) override;
    Outcome DrawTo(const PointerEvent& position) override {
        if (!figure.points.empty()) {
            figure.lastPoint = position.ClampedFrom(figure.points.front());
        }
        return {};
    }

    Outcome EndDrawing(const PointerEvent& event) override;
    int LevelAt(const PointF& press) override { return OnPath(figure.points, press) ? OnOutline : Outside; }
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    Outcome MoveTo(const PointerEvent& position) override;
    Outcome EndMove(const PointerEvent& release) override {
        AdjustEndpoint(release);
        PassesValidation(figure.points, true); // an owner gets to see the final line; it stays whatever the answer
        return Finish();
    }

    Outcome AdjustTo(const PointerEvent& position) override {
        AdjustEndpoint(position);
        return {};
    }
    bool TakesPoints(const Points& points) const override { return points.size() == LinePoints; }
    bool MovePoints(float dx, float dy, const ClientRect& view) override {
        return CGestureShape::MovePoints(horizon || movedHLine ? 0.0F : dx, dy, view);
    }
    void Forget() override {
        CGestureShape::Forget();
        figure.lastPoint = PointF{};
    }

    /// How many points the line may have.
    virtual size_t MaximumPoints() const = 0;
    /// Where a second point goes that is offered at `point`.
    virtual PointF Oriented(const PointF& point, const PointF& /*other*/) const { return point; }
    /// Whether a line from `first` may have a point there.
    virtual bool IsWithinLimit(const PointF& /*first*/, const PointF& /*point*/) const { return true; }

    void ReadWord(const char* option) override {
        horizon = horizon || IsWord(option, "Horizon") || name == "Horizon";
        movedHLine = movedHLine || IsWord(option, "MovedHLine") || name == "MovedHLine";
    }

    Refused Load(Loading& loading) override;
    Json::Value WriteGeometry() const override {
        return figure.points.size() < LinePoints ? Json::Value() : WritePoints(figure.points, figure.fitted);
    }
    CopyRule RuleOfCopying() const override { return CopyRule::Line; }

    bool horizon = false;
    bool movedHLine = false;

  private:
    bool OfferPoint(const PointF& point, const ClientRect& view);
    void AdjustEndpoint(const PointerEvent& position);
};

} // namespace rulecanvas
