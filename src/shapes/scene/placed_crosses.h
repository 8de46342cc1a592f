#pragma once

#include "shape/gesture_shape.h"

#include <json/value.h>

namespace rulecanvas {

/// Crosses that the user places with one click each, and then drags one at a time.
///
/// The points are the crosses in placing order; `grabbedIndex` is the cross under the last press. Every click is a
/// gesture of its own: the new cross follows the mouse until the button is released. Between two clicks the shape stays
/// in the drawing state and listens to nothing. No gesture gives the mouse capture back; clearing or ending the shape does.
class CPlacedCrosses : public CGestureShape {
  public:
    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    bool AwaitsPaint() const override { return false; }

  protected:
    /// How many crosses make the shape complete; one does in any case.
    virtual int Maximum() const = 0;
    /// Index of the cross that a press on the complete shape hits, or -1.
    virtual int CrossAt(const PointF& press) const;
    /// What a move and the release of the button do to a dragged cross. False: the move was not used.
    virtual bool DragCross(const PointF& position) = 0;
    virtual void DropCross(const PointF& position) = 0;
    /// The crosses as the member of a configuration gives them, and back. False: refused.
    virtual bool ReadCrosses(const Json::Value& member, const ViewSize& view, Points& crosses) = 0;
    virtual Json::Value WriteCrosses(const Points& crosses, const ViewSize& view) const = 0;

    void StartDrawing(const PointF& press) override;
    void ContinueDrawing(const PointF& press) override;
    bool OnMouseMove(const PointF& position) override;
    bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) override;

    /// False, with nothing changed, when there is no such cross.
    bool MoveCross(size_t index, const PointF& position);
    bool MoveCrossInView(size_t index, const PointF& position);
    size_t GrabbedCross() const { return static_cast<size_t>(grabbedIndex); }

  private:
    bool HasRoom() const;
    void PlaceCross(const PointF& press);
    size_t LastCross() const { return PointCount() - 1; }
    bool LoadCrosses(const char* shapeData);
};

} // namespace rulecanvas
