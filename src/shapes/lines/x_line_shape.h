#pragma once

#include "shapes/lines/path_line_shape.h"

namespace rulecanvas {

/// A tripwire: a path of up to 20 points whose sides are marked "A" and "B" at its middle segment, with arrows for the
/// direction of crossing that the host gave.
class CXLineShape : public CPathLineShape {
  public:
    CXLineShape();

  protected:
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    void DrawNamedSegment(const PointF& from, const PointF& to, const ShapeLook& look,
                          IContainerGraphics& surface) const;
    void DrawSides(const PointF& from, const PointF& to, const ShapeLook& look, IContainerGraphics& surface) const;
};

} // namespace rulecanvas
