#include "shape/drawing.h"

namespace rulecanvas {
namespace {

constexpr float AdjustBoxHalfSide = 3.0F;
constexpr float AdjustBoxWidth = 2.0F;
constexpr float DirectionMarkWidth = 2.0F;
constexpr int CaptionFormat = 32;

void DrawBarbs(const PointF& tip, const ArrowBarbs& barbs, float width, const ColorF& colour,
               IContainerGraphics& surface) {
    surface.DrawLine(&tip, &barbs.first, width, &colour, SolidPen);
    surface.DrawLine(&tip, &barbs.second, width, &colour, SolidPen);
}

} // namespace

void DrawAdjustBoxes(PointSpan points, IContainerGraphics& surface, const ColorF& colour) {
    for (const PointF& point : points) {
        const PointF topLeft{point.x - AdjustBoxHalfSide, point.y - AdjustBoxHalfSide};
        const PointF bottomRight{point.x + AdjustBoxHalfSide, point.y + AdjustBoxHalfSide};
        surface.DrawRectangle(&topLeft, &bottomRight, AdjustBoxWidth, &colour, SolidPen);
    }
}

void DrawShowName(const ShapeLook& look, IContainerGraphics& surface) {
    surface.DrawTextAtPoints(look.caption.c_str(), look.Path().data(), static_cast<int>(look.Path().size()),
                             look.Colour(), CaptionFormat, look.figure.clientRect, 1);
}

void DrawCaptionAt(const PointF& at, const TextStyle& style, const std::string& caption, IContainerGraphics& surface) {
    surface.DrawText(&at, &style, caption.c_str(), 0, 1);
}

void DrawArrowHead(const PointF& tail, const PointF& tip, float width, const ColorF& colour,
                   IContainerGraphics& surface) {
    DrawBarbs(tip, BarbsOf(tail, tip, ArrowHeadHalfAngle()), width, colour, surface);
}

void DrawDirectionArrow(const PointF& tail, const PointF& tip, const ColorF& colour, IContainerGraphics& surface) {
    DrawBarbs(tip, BarbsOf(tail, tip, DirectionArrowHalfAngle()), DirectionMarkWidth, colour, surface);
}

CrossStroke DrawDirectionMark(const PointF& a, const PointF& b, const ColorF& colour, IContainerGraphics& surface) {
    const CrossStroke stroke = DirectionMarkOf(a, b);
    surface.DrawLine(&stroke.upper, &stroke.lower, DirectionMarkWidth, &colour, SolidPen);
    return stroke;
}

void DrawSegment(const PointF& from, const PointF& to, float width, const ColorF& colour, IContainerGraphics& surface) {
    surface.DrawLine(&from, &to, width, &colour, SolidPen);
}

void DrawOpenPath(const Points& path, float width, const ColorF& colour, IContainerGraphics& surface) {
    for (size_t i = 1; i < path.size(); ++i) {
        DrawSegment(path[i - 1], path[i], width, colour, surface);
    }
}

} // namespace rulecanvas
