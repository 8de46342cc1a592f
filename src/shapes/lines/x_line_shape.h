#pragma once

#include "shapes/lines/path_line_shape.h"

namespace rulecanvas {

/// A tripwire: a path of up to 20 points whose sides are marked "A" and "B" at its middle segment, with arrows for the
/// direction of crossing that the host gave.
class CXLineShape final : public CPathLineShape {
  public:
    CXLineShape();

  protected:
    void Draw(const ShapeLook& look, PaintPass& pass) override;
};

} // namespace rulecanvas
