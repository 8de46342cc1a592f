#pragma once

#include "shape/click_path_shape.h"

namespace rulecanvas {

/// A closed polygon, drawn by clicking its vertices.
///
/// Edges that share no vertex never touch, whatever the user does; only a configuration can bring in others. A drawing
/// that its closing edge would cross is thrown away by the right button. The direction shows as arrows across the first
/// edge.
class CPolygonShape final : public CClickPathShape {
  public:
    enum class EdgePress { Ignored, InsertsVertex };

    explicit CPolygonShape(EdgePress edgePress);

    bool RestartDrawing() override;
    bool MoveShape(float dx, float dy) override;
    /// Appends the vertices.
    void GetShapePoints(Points& out) const override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;

  protected:
    bool IsOnOutline(const Points& ring, const PointF& press) const override;
    bool HandleRightPress(const PointF& press) override;
    bool OfferFinish() override;
    bool AcceptsPath(const Points& extended, bool isLast) override;
    bool AcceptsVertex(const Points& ring, size_t vertex) const override;
    bool EndMove(const PointF& release) override;
    bool IsPoint(const Json::Value& element) const override;
    void PrepareToDraw() override;
    void DrawRest(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    void DiscardDrawing();
    void InsertVertex(const PointF& press);
    bool IsSound(const Points& ring) const;
    void DrawDirection(const ShapeLook& look, IContainerGraphics& surface) const;
};

} // namespace rulecanvas
