#pragma once

#include "shapes/lines/line_shape.h"

namespace rulecanvas {

/// A dashed line without direction mark, for auxiliary lines that must not be mistaken for rules.
class CDashLineShape final : public CLineShape {
  public:
    CDashLineShape() : CLineShape(LineOrientation::Free) {}

  protected:
    void Draw(const ShapeLook& look, PaintPass& pass) override;
};

} // namespace rulecanvas
