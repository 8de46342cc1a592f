#include "shapes/lines/x_line_shape.h"

#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/lines/crossing_mark.h"

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("XLineShape", &MakeShape<CXLineShape>);

constexpr int LongestPath = 20;
constexpr float NameSize = 0.0F;
constexpr float LetterSize = 1.0F;
constexpr float SideArrowWidth = 1.0F;

} // namespace

CXLineShape::CXLineShape() {
    maxPtNum = LongestPath;
}

void CXLineShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    const Points& path = look.points;
    if (path.empty()) {
        return;
    }
    const bool rubberLine = look.state == Drawing && look.PointerInView();
    if (rubberLine) {
        DrawNamedSegment(path.back(), look.lastPoint, look, surface);
    }
    for (size_t i = 1; i < path.size(); ++i) {
        DrawNamedSegment(path[i - 1], path[i], look, surface);
    }
    if (path.size() > 1) {
        const size_t middle = path.size() / 2;
        DrawSides(path[middle - 1], path[middle], look, surface);
    }
    if (rubberLine) {
        DrawSides(path.back(), look.lastPoint, look, surface);
    }
    if (look.handles) {
        DrawAdjustBoxes(path, surface, look.Colour());
    }
}

/// The name is written again for every segment, always at the first point; the thickness is always the selected one.
void CXLineShape::DrawNamedSegment(const PointF& from, const PointF& to, const ShapeLook& look,
                                   IContainerGraphics& surface) const {
    DrawCaptionAt(look.points[0], look.Text(look.Colour(), NameSize), look.caption, surface);
    DrawOpenPath({from, to}, look.SelectedThickness(), look.Colour(), surface);
}

void CXLineShape::DrawSides(const PointF& from, const PointF& to, const ShapeLook& look,
                            IContainerGraphics& surface) const {
    const int crossing = hostDirection;
    if (crossing == NoCrossing) {
        return;
    }
    const ColorF& colour = look.Colour();
    const TextStyle style = look.Text(colour, LetterSize);
    const CrossStroke stroke = DrawDirectionMark(from, to, colour, surface);
    const bool aIsUpper = SideAIsUpper(from, to);
    DrawCaptionAt(stroke.upper, style, aIsUpper ? "A" : "B", surface);
    DrawCaptionAt(stroke.lower, style, aIsUpper ? "B" : "A", surface);
    for (const CrossingArrow& arrow : CrossingArrows(from, to, stroke, crossing)) {
        DrawArrowHead(arrow.tail, arrow.tip, SideArrowWidth, colour, surface);
    }
}

} // namespace rulecanvas
