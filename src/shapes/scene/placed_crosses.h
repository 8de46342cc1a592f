#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// Crosses that the user places with one click each, and then drags one at a time.
///
/// The points are the crosses in placing order; `grabbedIndex` is the cross under the last press. Every click is a
/// gesture of its own: the new cross follows the mouse until the button is released. Between two clicks the shape stays
/// in the drawing state and listens to nothing. No gesture gives the mouse capture back; clearing or ending the shape
/// does.
class CPlacedCrosses : public CGestureShape {
  public:
    bool AwaitsPaint() const override { return false; }

  protected:
    /// How many crosses make the shape complete; one does in any case.
    virtual int Maximum() const = 0;
    /// Index of the cross that a press on the complete shape hits, or -1.
    virtual int CrossAt(const PointF& press) const;
    /// What a move of a dragged cross and its release do.
    virtual void DragCross(PointF& cross, const PointerEvent& position) = 0;
    virtual void DropCross(PointF& /*cross*/, const PointerEvent& /*release*/) {}
    /// The crosses as the member of a configuration gives them; null when it is missing.
    virtual Points ReadCrosses(const Json::Value& member) = 0;

    Outcome StartDrawing(const PointerEvent& press) override { return ContinueDrawing(press); }
    Outcome ContinueDrawing(const PointerEvent& press) override;
    Outcome DrawTo(const PointerEvent& position) override {
        if (!figure.points.empty()) {
            PointF& last = figure.points.back();
            last = position.ClampedFrom(last);
        }
        return {};
    }

    Outcome EndDrawing(const PointerEvent& release) override;
    Outcome AdjustTo(const PointerEvent& position) override {
        if (PointF* cross = GrabbedCross()) {
            DragCross(*cross, position);
        }
        return {};
    }

    Outcome EndAdjust(const PointerEvent& release) override;

    bool TakesStyle() const override { return false; }
    Refused Load(Loading& loading) override {
        figure.points = ReadCrosses(loading.geometry);
        Enter(Complete);
        return std::nullopt;
    }

    CopyRule RuleOfCopying() const override { return CopyRule::ZeroUncounted; }
    int LevelAt(const PointF& press) override {
        figure.grabbedIndex = CrossAt(press);
        return figure.grabbedIndex < 0 ? Miss : OnOutline;
    }

    Claim CompleteClaim() const override { return Claim::Around(figure.points, HitReach, false); }

    /// The cross under the last press, or null.
    PointF* GrabbedCross() {
        const auto index = static_cast<size_t>(figure.grabbedIndex);
        return figure.grabbedIndex < 0 || index >= figure.points.size() ? nullptr : &figure.points[index];
    }
};

} // namespace rulecanvas
