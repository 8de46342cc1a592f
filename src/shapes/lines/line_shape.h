#pragma once

#include "shape/gesture_shape.h"

namespace rulecanvas {

enum class LineOrientation : int { Free = 0, Vertical = 1, Horizontal = 2 };

/// A straight line between two points, and the base of all lines that are drawn point by point.
///
/// The first press places the first point; every release offers a further one, so that both press-drag-release and
/// click-click draw the line. It is complete with its last allowed point. While it is drawn, `lastPoint` is the free
/// end of the rubber line; while it is moved, `anchorPoint` is the last mouse position; `grabbedIndex` is the point
/// under the last press, or -1.
///
/// A vertical or horizontal line keeps to its direction. A horizon is level and moves up and down only; a moved
/// horizontal line does so too, and its ends cannot be dragged.
class CLineShape : public CGestureShape {
  public:
    explicit CLineShape(LineOrientation lineOrientation);
    /// A line of the same kind, look and names; without points, container and identity of the other.
    CLineShape(const CLineShape& other);

    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    void ClearShape() override;
    void RemoveSubShape(ShapeID id) override;
    bool MoveShape(float dx, float dy) override;
    /// The points with one of the two ends at `current`, kept in the view and in the line's direction.
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;
    /// Takes exactly two points.
    void SetShapePoints(Points newPoints) override;

    /// The figure inside which a line without an event name must be drawn. False without a figure.
    bool SetLimitArea(const CVideoAnalyseShape* area);
    /// Cuts the line, thought of as endless, down to the part between the outlines of a polygon given as a member of a
    /// JSON object. False, with nothing changed, unless the mode is 0 and the outline is met at two places.
    bool ClipToPolygon(const char* text, const char* key, int mode);

  protected:
    void StartDrawing(const PointF& press) override;
    void StartEditing(const PointF& press, int hitLevel) override;
    bool OnMouseMove(const PointF& position) override;
    bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

    /// How many points the line may have; limits of the host are for lines that may bend.
    virtual size_t MaximumPoints() const;
    /// The answer of whoever wants to judge the line; `complete` marks its final form.
    bool IsAcceptable(const Points& path, bool complete) const;

  private:
    PointF Oriented(PointF point, const PointF& other) const;
    void DragRubberEnd(const PointF& position);
    void PlacePoint(const PointF& position);
    /// Where a release offers a point: in the view, and level for a horizontal line.
    PointF Released(const PointF& position, const PointF& first) const;
    bool LimitAllows(const PointF& first, const PointF& point) const;
    bool OfferPoint(const PointF& point, Points& path) const;
    void MoveTo(const PointF& position);
    bool AdjustEndpoint(const PointF& position);
    void FinishEditing(const PointF& release);
    bool LoadPoints(const char* shapeData);
    void DrawMarkedSegment(const PointF& from, const PointF& to, const ShapeLook& look, IContainerGraphics& surface);

    const LineOrientation orientation;
    bool horizon = false;
    bool movedHLine = false;
    /// A closed ring: the first point stands at the end again.
    Points limitArea;
};

} // namespace rulecanvas
