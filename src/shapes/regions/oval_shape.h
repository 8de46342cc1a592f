#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

/// An ellipse, drawn by dragging from one corner of its bounding rectangle to the opposite one.
///
/// Its points are the corners of that rectangle: top left, top right, bottom right, bottom left. Presses are judged by
/// the rectangle, not by the ellipse. Eight handles, the corners and the middles of the edges, resize it.
///
/// `anchorPoint` is the press while the oval is drawn, the last accepted mouse position while it is moved, and the
/// fixed corner while it is resized; `lastPoint` is where the mouse is while it is drawn, then where it was released.
class COvalShape : public CGestureShape {
  public:
    COvalShape();

    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    /// Appends the corners.
    void GetShapePoints(Points& out) const override;
    /// Forgets the figure alone: an oval is cleared only on its way out, which ends its gesture too.
    void ClearShape() override;
    /// An oval stays as it is: to draw another one, the host makes a new shape.
    bool RestartDrawing() override;
    bool AwaitsPaint() const override { return false; }

  protected:
    void StartDrawing(const PointF& press) override;
    void StartEditing(const PointF& press, int hitLevel) override;
    bool OnMouseMove(const PointF& position) override;
    bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) override;
    /// In every view. A hidden oval still shows as long as its last drag has an extent, so that the user sees what the
    /// mouse does.
    bool IsShownIn(ViewID view) const override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    static constexpr size_t CornerCount = 4;

    bool FinishDrawing(const PointF& release);
    bool Resize(const PointF& position);
    bool LoadCorners(const char* shapeData);
    void SendState(int previousState, int newState);

    PointF edgeFixPoint{};
};

} // namespace rulecanvas
