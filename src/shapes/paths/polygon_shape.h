#pragma once

#include "shapes/paths/click_path_shape.h"

namespace rulecanvas {

/// A closed polygon, drawn by clicking its vertices.
///
/// Edges that share no vertex never touch, whatever is drawn and dragged; only a configuration or an inserted vertex can
/// bring in others. A drawing that its closing edge would cross is thrown away by the right button. The direction shows
/// as arrows across the first edge.
class CPolygonShape final : public CClickPathShape {
  public:
    enum class EdgePress { Ignored, InsertsVertex };

    explicit CPolygonShape(EdgePress onEdge) : edgePress(onEdge) {}

    bool RestartDrawing() override;
    /// Appends the vertices.
    void GetShapePoints(Points& out) const override;

  protected:
    Outcome EndMove(const PointerEvent& release) override;
    bool MovePoints(float dx, float dy, const ClientRect& view) override;
    bool IsOnOutline(const PointF& press) const override;
    bool HasInside() const override { return true; }
    bool HandleRightPress(const PointF& press) override;
    bool OfferFinish() override;
    bool AcceptsLastPoint(bool isLast) const override;
    bool AcceptsVertex(size_t vertex) const override;
    bool IsPoint(const Json::Value& element) const override { return !element.isNull(); }
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    CopyRule RuleOfCopying() const override { return CopyRule::ZeroUncounted; }
    bool FitToPaint(const PaintPass& pass) override;
    void DrawRest(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    void InsertVertex(const PointF& press);
    bool IsSound() const;

    const EdgePress edgePress;
};

} // namespace rulecanvas
