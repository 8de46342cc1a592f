#include "shapes/lines/line_shape.h"

#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/lines/crossing_mark.h"

namespace rulecanvas {
namespace {

const bool registered = Register<CLineShape, LineOrientation::Free>("LineShape") &&
                        Register<CLineShape, LineOrientation::Vertical>("VerticalLineShape") &&
                        Register<CLineShape, LineOrientation::Horizontal>("HorizontalLineShape");

/// The mark goes by the direction that the host gave; the style's direction is that of arrow lines.
void DrawMarkedSegment(const PointF& from, const PointF& to, const ShapeLook& look, IContainerGraphics& surface) {
    const int crossing = look.style->hostDirection;
    DrawSegment(from, to, look.Thickness(), look.Colour(), surface);
    if (crossing == NoCrossing) {
        return;
    }
    const CrossStroke stroke = DrawDirectionMark(from, to, look.Colour(), surface);
    if (crossing < CrossingAToB || crossing > CrossingBothWays) {
        return;
    }
    for (const CrossingArrow& arrow : CrossingArrows(from, to, stroke, crossing)) {
        DrawDirectionArrow(arrow.tail, arrow.tip, look.Colour(), surface);
    }
}

} // namespace

CLineShape::CLineShape(LineOrientation lineOrientation) : orientation(lineOrientation) {
    constexpr int typeOf[] = {FreeLineType, VerticalLineType, HorizontalLineType};
    shapeType = typeOf[static_cast<int>(orientation)];
    maxPtNum = LinePoints;
}

CLineShape::CLineShape(const CLineShape& other) : CLineShape(other.orientation) {
    LockGuard guard(other.lock);
    horizon = other.horizon;
    movedHLine = other.movedHLine;
    maxPtNum = other.maxPtNum;
    style = other.style;
    name = other.name;
    if (other.eventNameSet) {
        SetEventName(other.GetEventName().c_str());
    }
}

bool CLineShape::DragPoint(int index, const PointF& to, const ClientRect& view) {
    Points& line = figure.points;
    if (index < 0 || index > 1 || line.size() < LinePoints) {
        return false;
    }
    const PointF& other = line[static_cast<size_t>(1 - index)];
    line[static_cast<size_t>(index)] = ClampRelative(other, Oriented(to, other), view);
    return true;
}

bool CLineShape::SetLimitArea(const CVideoAnalyseShape* area) {
    if (area == nullptr) {
        return false;
    }
    area->GetShapePoints(limitArea);
    if (!limitArea.empty()) {
        limitArea.push_back(PointF(limitArea.front()));
    }
    return true;
}

bool CLineShape::ClipToPolygon(const char* text, const char* key, int mode) {
    Json::Value root;
    if (IsEmpty(text) || IsEmpty(key) || mode != 0 || !ParseJson(text, root)) {
        return false;
    }
    LearnViewSize();
    LockGuard guard(lock);
    Points ring;
    for (const Json::Value& corner : MemberOf(root, key)) {
        if (!IsArrayOf(corner, 2)) {
            return false;
        }
        ring.push_back(ReadRealPoint(corner, figure.fitted));
    }
    Points& line = figure.points;
    Points meetings = line.size() == LinePoints ? MeetingsWithRing(line[0], line[1], ring) : Points();
    if (meetings.size() != LinePoints) {
        return false;
    }
    line = std::move(meetings);
    MarkClaimStale();
    return true;
}

void CLineShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& line = look.Path();
    if (line.size() >= LinePoints) {
        DrawMarkedSegment(line[0], line[1], look, pass.surface);
        if (!look.caption.empty()) {
            DrawShowName(look, pass.surface);
        }
    } else if (line.size() == 1 && look.PointerInView()) {
        DrawMarkedSegment(line[0], Oriented(look.figure.lastPoint, line[0]), look, pass.surface);
    }
    if (look.handles) {
        DrawAdjustBoxes(line, pass.surface, look.Colour());
    }
}

} // namespace rulecanvas
