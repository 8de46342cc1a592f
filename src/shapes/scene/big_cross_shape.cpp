#include "shapes/scene/big_cross_shape.h"

#include "geometry/grid.h"
#include "shape/drawing.h"
#include "shape/shape_factory.h"

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("BigCrossShape", &MakeShape<CBigCrossShape>);

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

} // namespace

Outcome CBigCrossShape::StartEditing(const PointerEvent& /*press*/, int hitLevel) {
    return hitLevel == OnOutline ? Begin(Adjusting) : Outcome{};
}

void CBigCrossShape::DragCross(PointF& cross, const PointerEvent& position) {
    cross = position.ClampedFrom(cross);
}

/// Where the mouse is, be it outside the view.
void CBigCrossShape::DropCross(PointF& cross, const PointerEvent& release) {
    cross = release.position;
}

/// Bands that are missing, and borders that are missing in one, count as zeros.
Points CBigCrossShape::ReadCrosses(const Json::Value& member) {
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

Json::Value CBigCrossShape::WriteGeometry(const Points& points, const ViewSize& view) const {
    Json::Value bands;
    if (points.size() != CrossHairs) {
        return bands;
    }
    for (const PointF& cross : points) {
        const GridPoint grid = ToGrid(cross, view);
        bands.append(Band(0, Beside(grid.y, -BandHalfWidth), GridSpan, Beside(grid.y, BandHalfWidth)));
        bands.append(Band(Beside(grid.x, -BandHalfWidth), 0, Beside(grid.x, BandHalfWidth), GridSpan));
    }
    return bands;
}

void CBigCrossShape::Draw(const ShapeLook& look, PaintPass& pass) {
    for (const PointF& cross : look.Path()) {
        DrawCrossHair(cross, look, pass.surface);
    }
}

} // namespace rulecanvas
