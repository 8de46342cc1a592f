#include "shapes/scene/big_cross_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/grid.h"
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
    const ColorF& colour = look.selColour;
    const PointF left{0.0F, cross.y};
    const PointF right{static_cast<float>(look.size.width), cross.y};
    const PointF top{cross.x, 0.0F};
    const PointF bottom{cross.x, static_cast<float>(look.size.height)};
    const PointF dotTopLeft{cross.x - DotHalfSide, cross.y - DotHalfSide};
    const PointF dotBottomRight{cross.x + DotHalfSide, cross.y + DotHalfSide};
    surface.DrawLine(&left, &right, width, &colour, SolidPen);
    surface.DrawLine(&top, &bottom, width, &colour, SolidPen);
    surface.FillEllipse(&dotTopLeft, &dotBottomRight, width, colour, &colour);
}

} // namespace

void CBigCrossShape::StartEditing(const PointF& /*press*/, int hitLevel) {
    if (hitLevel == OnOutline) {
        BeginGesture(Adjusting);
    }
}

bool CBigCrossShape::DragCross(const PointF& position) {
    MoveCrossInView(GrabbedCross(), position);
    return true;
}

void CBigCrossShape::DropCross(const PointF& position) {
    MoveCross(GrabbedCross(), position);
}

bool CBigCrossShape::ReadCrosses(const Json::Value& member, const ViewSize& view, Points& crosses) {
    if (member.isNull()) {
        return true;
    }
    constexpr Json::ArrayIndex bandCount = 2 * CrossHairs; // bands that are missing count as zeros
    for (Json::ArrayIndex i = 0; i < bandCount; i += 2) {
        const double y = MiddleOf(member[i], Top);
        const double x = MiddleOf(member[i + 1], Left);
        crosses.push_back(ToPixels(x, y, view));
    }
    return true;
}

Json::Value CBigCrossShape::WriteCrosses(const Points& crosses, const ViewSize& view) const {
    Json::Value bands(Json::arrayValue);
    for (const PointF& cross : crosses) {
        const GridPoint grid = ToGrid(cross, view);
        bands.append(Band(0, Beside(grid.y, -BandHalfWidth), GridSpan, Beside(grid.y, BandHalfWidth)));
        bands.append(Band(Beside(grid.x, -BandHalfWidth), 0, Beside(grid.x, BandHalfWidth), GridSpan));
    }
    return bands;
}

void CBigCrossShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    for (const PointF& cross : look.points) {
        DrawCrossHair(cross, look, surface);
    }
}

} // namespace rulecanvas
