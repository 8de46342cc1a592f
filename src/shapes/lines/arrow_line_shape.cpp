#include "shapes/lines/arrow_line_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/shape_factory.h"

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("ArrowLineShape", &MakeShape<CArrowLineShape>);

constexpr int HeadAtUpperEnd = 3;
constexpr int HeadAtLowerEnd = 4;
constexpr int HeadOnFirstSegment = 5;

} // namespace

void CArrowLineShape::HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) {
    if (hitLevel == Busy && IsAcceptable(CopyPoints(), true)) {
        CPathLineShape::HandleRButtonEvent(event, hitLevel);
    }
}

bool CArrowLineShape::MoveShape(float dx, float dy) {
    KnownViewSize(); // as for a dragged point
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): other lines are bound to a horizon by their name, an arrow is not
    return CGestureShape::MoveShape(dx, dy);
}

bool CArrowLineShape::AcceptsMoved(const Points& moved) const {
    return AcceptsPoints(moved) && PassesChecks(moved);
}

bool CArrowLineShape::BuildDragPoints(int index, const PointF& current, Points& out) {
    return CPathLineShape::BuildDragPoints(index, current, out) && PassesChecks(out);
}

bool CArrowLineShape::PassesChecks(const Points& path) const {
    return IsAcceptable(path, false) && GeometryCheckHook.Accepts(path);
}

void CArrowLineShape::PrepareToDraw() {
    FitToClientRect();
}

void CArrowLineShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.points.empty()) {
        return;
    }
    if (look.state == Drawing && look.PointerInView()) {
        DrawOpenPath({look.points.back(), look.lastPoint}, look.Thickness(), look.Colour(), surface);
    }
    DrawOpenPath(look.points, look.Thickness(), look.Colour(), surface);
    if (look.points.size() > 1) {
        DrawHead(look, surface);
    }
}

/// Directions 3 and 4 name an end of the path by its place on the screen, which the last segment alone decides; a level
/// one counts as falling.
void CArrowLineShape::DrawHead(const ShapeLook& look, IContainerGraphics& surface) const {
    const Points& path = look.points;
    const PointF& beforeLast = path[path.size() - 2];
    const PointF& last = path.back();
    const bool rising = beforeLast.y > last.y;
    const auto draw = [&](const PointF& tail, const PointF& tip) {
        DrawArrowHead(tail, tip, look.Thickness(), look.Colour(), surface);
    };
    switch (direction) {
    case HeadOnFirstSegment:
        draw(path[0], path[1]);
        break;
    case HeadAtUpperEnd:
        rising ? draw(beforeLast, last) : draw(path[1], path[0]);
        break;
    case HeadAtLowerEnd:
        rising ? draw(path[1], path[0]) : draw(beforeLast, last);
        break;
    default:
        break;
    }
}

} // namespace rulecanvas
