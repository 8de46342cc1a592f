#pragma once

#include "shapes/lines/line_shape.h"

namespace rulecanvas {

/// A dashed line without direction mark, for auxiliary lines that must not be mistaken for rules.
class CDashLineShape : public CLineShape {
  public:
    CDashLineShape();

  protected:
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;
};

} // namespace rulecanvas
