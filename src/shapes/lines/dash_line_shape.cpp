#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/lines/line_shape.h"

namespace rulecanvas {
namespace {

/// A dashed line without direction mark, for auxiliary lines that must not be mistaken for rules.
class CDashLineShape final : public CLineShape {
  public:
    CDashLineShape() : CLineShape(LineOrientation::Free) {}

  private:
    void Draw(const ShapeLook& look, PaintPass& pass) override;
};

const bool registered = Register<CDashLineShape>("DashLineShape");

/// Always as thick as a selected line.
void DrawDashes(const PointF& from, const PointF& to, const ShapeLook& look, IContainerGraphics& surface) {
    surface.DrawLine(&from, &to, look.SelectedThickness(), &look.Colour(), PatternedPen);
}

} // namespace

void CDashLineShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& line = look.Path();
    if (line.size() > 1) {
        DrawDashes(line[0], line[1], look, pass.surface);
        DrawShowName(look, pass.surface);
    } else if (line.size() == 1 && look.PointerInView()) {
        DrawDashes(line[0], look.figure.lastPoint, look, pass.surface);
    } else {
        return;
    }
    if (look.handles) {
        DrawAdjustBoxes(line, pass.surface, look.Colour());
    }
}

} // namespace rulecanvas
