#pragma once

#include "shape/gesture_shape.h"

#include <json/value.h>

namespace rulecanvas {

/// A figure of many points that is drawn click by click, with a rubber line from the last point to the mouse, and
/// finished by the right button or by the last point allowed. Finished, it is moved by its inside and reshaped by its
/// vertices.
///
/// The mode word "Convex" keeps it from ever becoming concave. `anchorPoint` is the last point placed while it is
/// drawn, the last accepted mouse position while it is moved, and the place from which a vertex was dragged.
class CClickPathShape : public CGestureShape {
  public:
    CClickPathShape();

    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    /// Offers to finish a drawing, to act on an edge of the finished figure, or to delete it.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    /// The points with one of them at `current`.
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;
    void SetShapePoints(Points newPoints) override;

    /// A rectangle that gestures must end in; a negative left lifts the limit. For the figures that own this one.
    void SetLimitRectangle(const ClientRect& limit) { m_recWnd = limit; }

  protected:
    virtual bool IsOnOutline(const Points& path, const PointF& press) const = 0;
    /// What to do with a right press on the finished figure before the figure may be deleted by it. False: the press is
    /// used up.
    virtual bool HandleRightPress(const PointF& press) = 0;
    /// Asked when the right button could finish a drawing that has points enough. False: it may not.
    virtual bool OfferFinish();
    /// Whether the path may grow to these points; `isLast` when they are all that are allowed.
    virtual bool AcceptsPath(const Points& extended, bool isLast);
    /// Whether a finished figure may have these points, of which one is new or has moved.
    virtual bool AcceptsVertex(const Points& path, size_t vertex) const;
    /// One step of a move of the whole figure. False: nothing moved.
    virtual bool MoveTo(const PointF& position);
    /// Whether a move may end with a release there.
    virtual bool EndMove(const PointF& release) = 0;
    virtual bool IsPoint(const Json::Value& element) const = 0;
    /// Everything but the edges between consecutive points and the rubber line.
    virtual void DrawRest(const ShapeLook& look, IContainerGraphics& surface) = 0;

    void StartDrawing(const PointF& press) override;
    void ContinueDrawing(const PointF& press) override;
    void StartEditing(const PointF& press, int hitLevel) override;
    bool OnMouseMove(const PointF& position) override;
    bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

    int LevelAt(const PointF& press) const;
    bool IsConvexEnough(const Points& path) const;
    bool IsOutsideLimit(const PointF& point) const;

  private:
    bool HasEnoughPoints() const;
    bool AcceptsNext(const PointF& last, const PointF& next, bool isLast);
    bool AcceptsVertexMove(int index, const PointF& position);
    bool LoadPoints(const char* shapeData);

    bool convex = false;
    ClientRect m_recWnd{-1, -1, -1, -1};
};

} // namespace rulecanvas
