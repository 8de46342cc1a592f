#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/lines/crossing_mark.h"
#include "shapes/lines/path_line_shape.h"

namespace rulecanvas {
namespace {

/// A tripwire: a path of up to 20 points whose sides are marked "A" and "B" at its middle segment, with arrows for the
/// direction of crossing that the host gave.
class CXLineShape final : public CPathLineShape {
  public:
    CXLineShape() { maxPtNum = LongestPath; }

  private:
    void Draw(const ShapeLook& look, PaintPass& pass) override;
};

const bool registered = Register<CXLineShape>("XLineShape");

constexpr float NameSize = 0.0F;
constexpr float LetterSize = 1.0F;
constexpr float SideArrowWidth = 1.0F;

/// The name is written again for every segment, always at the first point; the thickness is always the selected one.
void DrawNamedSegment(const PointF& from, const PointF& to, const ShapeLook& look, IContainerGraphics& surface) {
    DrawCaptionAt(look.Path()[0], look.Text(look.Colour(), NameSize), look.caption, surface);
    DrawSegment(from, to, look.SelectedThickness(), look.Colour(), surface);
}

void DrawSides(const PointF& from, const PointF& to, const ShapeLook& look, IContainerGraphics& surface) {
    const int crossing = look.style->hostDirection;
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

} // namespace

void CXLineShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& path = look.Path();
    const PointF& pointer = look.figure.lastPoint;
    if (path.empty()) {
        return;
    }
    const bool rubberLine = look.state == Drawing && look.PointerInView();
    if (rubberLine) {
        DrawNamedSegment(path.back(), pointer, look, pass.surface);
    }
    for (size_t i = 1; i < path.size(); ++i) {
        DrawNamedSegment(path[i - 1], path[i], look, pass.surface);
    }
    if (path.size() > 1) {
        const size_t middle = path.size() / 2;
        DrawSides(path[middle - 1], path[middle], look, pass.surface);
    }
    if (rubberLine) {
        DrawSides(path.back(), pointer, look, pass.surface);
    }
    if (look.handles) {
        DrawAdjustBoxes(path, pass.surface, look.Colour());
    }
}

} // namespace rulecanvas
