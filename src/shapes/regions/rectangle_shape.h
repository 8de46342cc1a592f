#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// An axis-parallel rectangle, drawn by dragging from one corner to the opposite one.
///
/// It has no corners, or four whole-pixel ones: top left, top right, bottom right, bottom left. `anchorPoint` is the
/// fixed opposite corner while it is drawn or resized, and the last accepted mouse position while it is moved.
class CRectangleShape : public CGestureShape {
  public:
    CRectangleShape();

    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;
    /// Appends the corners.
    void GetShapePoints(Points& out) const override;
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    /// The corners between the anchor and `current`; false when they lie too close together.
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;
    void SetShapePoints(Points newPoints) override;

    /// Makes the rectangle complete round a centre, unless it would be too small.
    void PlaceAt(const PointF& centre, int width, int height);
    /// An area that no gesture may leave uncovered; a negative left lifts the limit.
    void SetCropLimit(const ClientRect& limit) { cropLimit = limit; }

  protected:
    static constexpr size_t CornerCount = 4;

    void StartDrawing(const PointF& press) override;
    void StartEditing(const PointF& press, int hitLevel) override;
    bool OnMouseMove(const PointF& position) override;
    bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

    bool BuildFromTwoPoints(const PointF& first, const PointF& second, Points& out) const;

    int minimumSide = 10;

  private:
    void HitTestComplete(const PointF& press, int& hitLevel) const;
    bool RebuildFromAnchor(const PointF& opposite);
    bool FinishDrawing(const PointF& release, const ContainerMouseEvent& event);
    bool LoadCorners(const char* shapeData);
    bool CoversCropLimit(const PointF& topLeft, const PointF& bottomRight) const;
    bool DragCoversCropLimit(const PointF& release) const;
    bool MoveCoversCropLimit(const PointF& release) const;
    float OutlineThickness(const ShapeLook& look) const;

    ClientRect cropLimit{-1, -1, -1, -1};
    bool textOnly = false;
};

} // namespace rulecanvas
