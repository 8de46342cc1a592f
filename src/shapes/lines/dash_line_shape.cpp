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

CDashLineShape::CDashLineShape() : CLineShape(LineOrientation::Free) {}

void CDashLineShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.points.size() > 1) {
        DrawDashes(look.points[0], look.points[1], look, surface);
        DrawShowName(look, surface, look.Colour());
    } else if (look.points.size() == 1 && look.PointerInView()) {
        DrawDashes(look.points[0], look.lastPoint, look, surface);
    } else {
        return;
    }
    if (look.handles) {
        DrawAdjustBoxes(look.points, surface, look.Colour());
    }
}

} // namespace rulecanvas
