#include "bare_drawing.h"

namespace rulecanvas::bench {
namespace {

constexpr float LineWidth = 2.0F;
constexpr ColorF Colour{1.0F, 0.0F, 0.0F, 255.0F};

} // namespace

void DrawBare(Kind kind, const Points& points, IContainerGraphics& surface) {
    static const TextStyle style{Colour, LineWidth, "MS Sans Serif"};
    switch (kind) {
    case Kind::Polygon:
        for (size_t corner = 1; corner < points.size(); ++corner) {
            surface.DrawLine(&points[corner - 1], &points[corner], LineWidth, &Colour, 0);
        }
        surface.DrawLine(&points.back(), &points.front(), LineWidth, &Colour, 0);
        surface.DrawTextAtPoints("", points.data(), static_cast<int32_t>(points.size()), Colour, 32, ViewRect, 1);
        return;
    case Kind::Rectangle:
        surface.DrawText(&points[0], &style, "", 0, 1);
        surface.DrawRectangle(&points[0], &points[1], LineWidth, &Colour, 0);
        return;
    case Kind::Line:
        surface.DrawLine(&points[0], &points[1], LineWidth, &Colour, 0);
    }
}

} // namespace rulecanvas::bench
