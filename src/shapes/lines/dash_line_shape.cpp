#include "shapes/lines/dash_line_shape.h"

#include "shape/drawing.h"
#include "shape/shape_factory.h"

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("DashLineShape", &MakeShape<CDashLineShape>);

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
