#include "geometry/grid.h"
#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/scene/placed_crosses.h"

namespace rulecanvas {
namespace {

constexpr float DotHalfSide = 5.0F;
constexpr int BandHalfWidth = 1;

/// Left and top are the borders that a configuration is read from.
enum Border : Json::ArrayIndex { Left = 0, Top = 1 };

Json::Value Band(int left, int top, int right, int bottom) {
    Json::Value band(Json::arrayValue);
    for (const int border : {left, top, right, bottom}) {
        band.append(border);
    }
    return band;
}

double MiddleOf(const Json::Value& band, Border border) {
    return static_cast<double>(band[border].asInt()) + BandHalfWidth;
}

/// `line` moved by a few units of the grid; never past what an integer holds.
int Beside(int line, int offset) {
    return TruncateToInt(static_cast<double>(line) + offset);
}

void DrawCrossHair(const PointF& cross, const ShapeLook& look, IContainerGraphics& surface) {
    const float width = look.SelectedThickness();
    const ColorF& colour = look.style->selColor;
    const PointF left{0.0F, cross.y};
    const PointF right{static_cast<float>(look.figure.fitted.width), cross.y};
    const PointF top{cross.x, 0.0F};
    const PointF bottom{cross.x, static_cast<float>(look.figure.fitted.height)};
    const PointF dotTopLeft{cross.x - DotHalfSide, cross.y - DotHalfSide};
    const PointF dotBottomRight{cross.x + DotHalfSide, cross.y + DotHalfSide};
    surface.DrawLine(&left, &right, width, &colour, SolidPen);
    surface.DrawLine(&top, &bottom, width, &colour, SolidPen);
    surface.FillEllipse(&dotTopLeft, &dotBottomRight, width, colour, &colour);
}

/// Two cross-hairs whose lines span the whole picture, with a dot where they cross.
///
/// A configuration gives every cross-hair as two thin bands of the grid, one along each line; the cross-hair runs in
/// the middle of the band, one unit beside its border.
class CBigCrossShape final : public CPlacedCrosses {
    int Maximum() const override { return CrossHairs; }
    Outcome StartEditing(const PointerEvent& /*press*/, int hitLevel) override {
        return hitLevel == OnOutline ? Begin(Adjusting) : Outcome{};
    }
    void DragCross(PointF& cross, const PointerEvent& position) override { cross = position.ClampedFrom(cross); }
    /// Where the mouse is, be it outside the view.
    void DropCross(PointF& cross, const PointerEvent& release) override { cross = release.position; }
    /// Bands that are missing, and borders that are missing in one, count as zeros.
    Points ReadCrosses(const Json::Value& member) override {
        Points crosses;
        if (member.isNull()) {
            return crosses;
        }
        for (Json::ArrayIndex i = 0; i < 2 * CrossHairs; i += 2) {
            const double y = MiddleOf(member[i], Top);
            const double x = MiddleOf(member[i + 1], Left);
            crosses.push_back(ToPixels(x, y, figure.fitted));
        }
        return crosses;
    }

    Json::Value WriteGeometry() const override {
        Json::Value bands;
        if (figure.points.size() != CrossHairs) {
            return bands;
        }
        for (const PointF& cross : figure.points) {
            const GridPoint grid = ToGrid(cross, figure.fitted);
            bands.append(Band(0, Beside(grid.y, -BandHalfWidth), GridSpan, Beside(grid.y, BandHalfWidth)));
            bands.append(Band(Beside(grid.x, -BandHalfWidth), 0, Beside(grid.x, BandHalfWidth), GridSpan));
        }
        return bands;
    }

    void Draw(const ShapeLook& look, PaintPass& pass) override;

    static constexpr int CrossHairs = 2;
};

const bool registered = Register<CBigCrossShape>("BigCrossShape");

} // namespace

void CBigCrossShape::Draw(const ShapeLook& look, PaintPass& pass) {
    for (const PointF& cross : look.Path()) {
        DrawCrossHair(cross, look, pass.surface);
    }
}

} // namespace rulecanvas
