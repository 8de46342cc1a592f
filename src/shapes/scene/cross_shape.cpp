#include "shapes/scene/cross_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shape/text.h"

#include <cstdlib>

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("CrossShape", &MakeShape<CCrossShape>);

constexpr long MostCrosses = 1024;
constexpr float CaptionSize = 24.0F;

/// One pixel longer to the left and up than to the right and down: there lies the second pixel of a stroke that is two
/// pixels wide, and all four arms reach five pixels beyond it.
constexpr float LongArm = 6.0F;
constexpr float ShortArm = 5.0F;

/// The number in a mode word; 1 for none and for one that no user would click.
int MaximumFrom(const char* word) {
    constexpr int decimal = 10;
    const long number = IsEmpty(word) ? 1 : std::strtol(word, nullptr, decimal);
    return number < 1 || number > MostCrosses ? 1 : static_cast<int>(number);
}

void DrawCross(const PointF& cross, float width, const ColorF& colour, IContainerGraphics& surface) {
    const PointF left{cross.x - LongArm, cross.y};
    const PointF right{cross.x + ShortArm, cross.y};
    const PointF top{cross.x, cross.y - LongArm};
    const PointF bottom{cross.x, cross.y + ShortArm};
    surface.DrawLine(&left, &right, width, &colour, SolidPen);
    surface.DrawLine(&top, &bottom, width, &colour, SolidPen);
}

/// At the first cross, and on its other side where the text would leave the picture.
void DrawCaption(const ShapeLook& look, IContainerGraphics& surface) {
    const TextStyle style = look.Text(look.selColour, CaptionSize);
    const float width = surface.MeasureText(style, look.caption.c_str());
    const float height = surface.MeasureTextHeight(style, look.caption.c_str());
    PointF at = WholePixels(look.points.front());
    if (at.x + width > static_cast<float>(look.size.width)) {
        at.x -= width;
    }
    if (at.y + height > static_cast<float>(look.size.height)) {
        at.y -= height;
    }
    DrawCaptionAt(at, style, look.caption, surface);
}

} // namespace

CCrossShape::CCrossShape() {
    maxPtNum = 1;
}

bool CCrossShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) {
    maxPtNum = MaximumFrom(styleOrMode);
    return CPlacedCrosses::SetVideoAnalyseShapeData(shapeName, shapeData, styleOrMode);
}

int CCrossShape::CrossAt(const PointF& press) const {
    return Maximum() == 1 && PointCount() > 0 ? 0 : CPlacedCrosses::CrossAt(press);
}

void CCrossShape::StartEditing(const PointF& press, int /*hitLevel*/) {
    if (AcceptsPoint(press) && MoveCross(GrabbedCross(), press)) {
        BeginGesture(Adjusting);
    }
}

bool CCrossShape::DragCross(const PointF& position) {
    return AcceptsPoint(position) && MoveCross(GrabbedCross(), position);
}

/// A configuration without the member still makes as many crosses as were asked for, all in the top left corner, from
/// where the user drags them.
bool CCrossShape::ReadCrosses(const Json::Value& member, const ViewSize& view, Points& crosses) {
    if (!member.isNull()) {
        maxPtNum = static_cast<int>(member.size());
    }
    for (int i = 0; i < maxPtNum; ++i) {
        crosses.push_back(ReadPoint(member[i], view));
    }
    return true;
}

Json::Value CCrossShape::WriteCrosses(const Points& crosses, const ViewSize& view) const {
    Json::Value array(Json::arrayValue);
    for (const PointF& cross : Truncated(crosses)) {
        array.append(WritePoint(cross, view));
    }
    return array;
}

void CCrossShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    for (const PointF& cross : look.points) {
        DrawCross(cross, look.SelectedThickness(), look.selColour, surface);
    }
    if (!look.points.empty() && !look.caption.empty()) {
        DrawCaption(look, surface);
    }
}

} // namespace rulecanvas
