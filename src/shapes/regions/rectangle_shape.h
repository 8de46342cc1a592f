#pragma once

#include "shape/text.h"
#include "shapes/regions/box_shape.h"

namespace rulecanvas {

/// An axis-parallel rectangle with whole-pixel corners.
///
/// `anchorPoint` is the fixed opposite corner while it is drawn or resized, and the last accepted mouse position while
/// it is moved.
class CRectangleShape : public CBoxShape {
  public:
    CRectangleShape() { shapeType = RectangleType; }

    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int hitLevel) override {
        DeleteByRightButton(hitLevel);
    }

    // For a figure that owns this one; none of this version does.

    /// Makes the rectangle complete round a centre, unless it would be too small.
    void PlaceAt(const PointF& centre, int width, int height);
    /// An area that no gesture may leave uncovered; a negative left lifts the limit.
    void SetCropLimit(const ClientRect& limit) { cropLimit = limit; }

  protected:
    Outcome StartDrawing(const PointerEvent& press) override {
        figure.anchorPoint = press.position;
        return Begin(Drawing);
    }

    Outcome DrawTo(const PointerEvent& position) override { return AdjustTo(position); }
    Outcome EndDrawing(const PointerEvent& event) override;
    Outcome ConcludeDrawing(const PointerEvent& event) override;
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    Outcome EndMove(const PointerEvent& event) override;
    Outcome EndAdjust(const PointerEvent& release) override {
        return DragCoversCropLimit(WholePixels(release.position)) ? Finish() : Outcome{};
    }
    bool TakesPoints(const Points& points) const override { return points.size() == figure.points.size(); }
    /// The corners between the anchor and the dragged one.
    bool DragPoint(int /*index*/, const PointF& to, const ClientRect& view) override {
        return SpanCorners(figure.anchorPoint, to, view, minimumSide);
    }

    void ReadWord(const char* option) override {
        textOnly = textOnly || IsWord(option, "TextOnly");
        enableRBtnDelete = enableRBtnDelete || IsWord(option, "EnableRBtnDelete");
    }

    Refused Load(Loading& loading) override;
    int LevelAt(const PointF& press) override;
    /// Beside it only a selected rectangle answers, and selected shapes are asked everywhere.
    Claim CompleteClaim() const override { return Claim::Around(figure.points, HitReach, false); }
    void Draw(const ShapeLook& look, PaintPass& pass) override;

    /// Pixels.
    int minimumSide = 10;

  private:
    bool CoversCropLimit(const PointF& topLeft, const PointF& bottomRight) const;
    bool DragCoversCropLimit(const PointF& release) const;

    ClientRect cropLimit = NoLimit;
    bool textOnly = false;
};

} // namespace rulecanvas
