#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// One place in the picture, marked with a small circle that the user places with a click and can drag around, and with
/// the caption beside it.
///
/// It has one point or none. `anchorPoint` is the last accepted mouse position while it is dragged.
class CSpotShape : public CGestureShape {
  public:
    CSpotShape();

    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    /// The mode word "solid" fills the circle.
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    /// The spot as it would stand at `current`.
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;
    bool AwaitsPaint() const override { return false; }

  protected:
    void StartDrawing(const PointF& press) override;
    void StartEditing(const PointF& press, int hitLevel) override;
    bool OnMouseMove(const PointF& position) override;
    bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) override;
    void Dispose() override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    bool Covers(const PointF& press) const;
    bool LoadSpot(const char* shapeData);
    void DrawCaption(const ShapeLook& look, IContainerGraphics& surface) const;
};

} // namespace rulecanvas
