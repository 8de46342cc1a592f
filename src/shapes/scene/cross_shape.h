#pragma once

#include "shapes/scene/placed_crosses.h"

namespace rulecanvas {

/// Small crosses, one unless the mode word, the configuration or the host asks for more, with the caption at the first.
///
/// A single cross needs no aim: a press anywhere in the view takes it there.
class CCrossShape : public CPlacedCrosses {
  public:
    CCrossShape();

    /// The mode word is the number of crosses.
    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;

  protected:
    int Maximum() const override { return maxPtNum; }
    int CrossAt(const PointF& press) const override;
    void StartEditing(const PointF& press, int hitLevel) override;
    bool DragCross(const PointF& position) override;
    void DropCross(const PointF& /*position*/) override {}
    bool ReadCrosses(const Json::Value& member, const ViewSize& view, Points& crosses) override;
    Json::Value WriteCrosses(const Points& crosses, const ViewSize& view) const override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;
};

} // namespace rulecanvas
