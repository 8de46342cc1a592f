#include "shapes/regions/rectangle_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shape/text.h"
#include "shapes/regions/mosaic.h"

#include <algorithm>

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("Rect", &MakeShape<CRectangleShape>);

constexpr int RectangleType = 5;

int OppositeCorner(int corner) {
    return corner < 2 ? corner + 2 : corner - 2;
}

} // namespace

CRectangleShape::CRectangleShape() {
    shapeType = RectangleType;
    DragPointsHook =
        decltype(DragPointsHook)::Bind<&CVideoAnalyseShape::BuildDragPoints>(static_cast<CVideoAnalyseShape*>(this));
}

CVideoAnalyseShape* CRectangleShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (state == Complete) {
        HitTestComplete(PositionOf(event), hitLevel);
    } else if (state != Deleted) {
        hitLevel = Busy;
    }
    return this;
}

CVideoAnalyseShape* CRectangleShape::HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (!enableRBtnDelete) {
        return nullptr;
    }
    if (state == Complete) {
        HitTestComplete(PositionOf(event), hitLevel);
    }
    return this;
}

void CRectangleShape::HitTestComplete(const PointF& press, int& hitLevel) const {
    const Points corners = CopyPoints();
    if (OnRing(corners, press)) {
        hitLevel = OnOutline;
    } else if (InPolygon(corners, press)) {
        hitLevel = Inside;
    } else if (selected) {
        hitLevel = Outside;
    }
}

void CRectangleShape::HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int hitLevel) {
    DeleteByRightButton(hitLevel);
}

void CRectangleShape::GetShapePoints(Points& out) const {
    AppendPointsTo(out);
}

void CRectangleShape::StartDrawing(const PointF& press) {
    if (AcceptsPoint(press) && state == Waiting) {
        SetAnchorPoint(press);
        BeginGesture(Drawing);
    }
}

void CRectangleShape::StartEditing(const PointF& press, int /*hitLevel*/) {
    const Points corners = CopyPoints();
    grabbedIndex = VertexIndex(corners, press);
    if (grabbedIndex >= 0) {
        SetAnchorPoint(corners.at(static_cast<size_t>(OppositeCorner(grabbedIndex))));
        Grab(Adjusting);
    } else if (InPolygon(corners, press)) {
        SetAnchorPoint(press);
        Grab(Moving);
    }
}

bool CRectangleShape::OnMouseMove(const PointF& position) {
    const PointF clamped = ClampToView(anchorPoint, position);
    switch (state) {
    case Drawing:
    case Adjusting:
        RebuildFromAnchor(clamped);
        break;
    case Moving:
        FollowMouse(clamped);
        break;
    default:
        break;
    }
    return true;
}

bool CRectangleShape::OnButtonUp(const PointF& position, const ContainerMouseEvent& event) {
    const PointF release = WholePixels(position);
    switch (state) {
    case Drawing:
        return DragCoversCropLimit(release) && AcceptsPoint(release) && FinishDrawing(release, event);
    case Moving:
        return MoveCoversCropLimit(release) && FinishGesture();
    case Adjusting:
        return DragCoversCropLimit(release) && FinishGesture();
    default:
        return true;
    }
}

bool CRectangleShape::FinishDrawing(const PointF& release, const ContainerMouseEvent& event) {
    if (state != Drawing || !EndGesture()) {
        return false; // the host answered a question of this step by ending the drawing
    }
    if (release == anchorPoint || !RebuildFromAnchor(release)) {
        state = Waiting; // with the corners that the drag had reached, until another drawing replaces them
        return false;
    }
    CreationFinishedHook(event);
    return BecomeComplete();
}

bool CRectangleShape::RebuildFromAnchor(const PointF& opposite) {
    return EditPoints([&](Points& corners) { return DragPointsHook(grabbedIndex, opposite, corners); });
}

bool CRectangleShape::BuildDragPoints(int /*index*/, const PointF& current, Points& out) {
    return BuildFromTwoPoints(anchorPoint, current, out);
}

bool CRectangleShape::BuildFromTwoPoints(const PointF& first, const PointF& second, Points& out) const {
    const ClientRect view = ViewRect();
    const ClientRect rect = SpanRectangle(first, second, view).rect;
    const ViewSize size = SizeOf(rect);
    if (!SizeOf(view).Known() || size.width < minimumSide || size.height < minimumSide) {
        return false;
    }
    out = CornersOf(rect);
    return true;
}

void CRectangleShape::SetShapePoints(Points newPoints) {
    if (newPoints.size() == PointCount()) {
        ReplacePoints(std::move(newPoints));
    }
}

void CRectangleShape::PlaceAt(const PointF& centre, int width, int height) {
    const int halfWidth = width / 2;
    const int halfHeight = height / 2;
    const PointF half{static_cast<float>(halfWidth), static_cast<float>(halfHeight)};
    SetAnchorPoint(PointF{centre.x - half.x, centre.y - half.y});
    if (RebuildFromAnchor(PointF{centre.x + half.x, centre.y + half.y})) {
        state = Complete;
    }
    RegisterDraw();
}

bool CRectangleShape::CoversCropLimit(const PointF& topLeft, const PointF& bottomRight) const {
    if (cropLimit.left < 0) {
        return true;
    }
    return TruncateToInt(topLeft.x) <= cropLimit.left && TruncateToInt(topLeft.y) <= cropLimit.top &&
           TruncateToInt(bottomRight.x) >= cropLimit.right && TruncateToInt(bottomRight.y) >= cropLimit.bottom;
}

bool CRectangleShape::DragCoversCropLimit(const PointF& release) const {
    return CoversCropLimit(PointF{std::min(anchorPoint.x, release.x), std::min(anchorPoint.y, release.y)},
                           PointF{std::max(anchorPoint.x, release.x), std::max(anchorPoint.y, release.y)});
}

bool CRectangleShape::MoveCoversCropLimit(const PointF& release) const {
    const float dx = static_cast<float>(TruncateToInt(release.x - anchorPoint.x));
    const float dy = static_cast<float>(TruncateToInt(release.y - anchorPoint.y));
    const Points moved = Moved(CopyPoints(), dx, dy);
    return moved.size() != CornerCount || CoversCropLimit(moved[0], moved[2]);
}

bool CRectangleShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) {
    ParseStyleConfig(styleOrMode);
    BeginConfiguration(shapeName);
    textOnly = textOnly || IsWord(styleOrMode, "TextOnly");
    enableRBtnDelete = enableRBtnDelete || IsWord(styleOrMode, "EnableRBtnDelete");
    if (!IsEmpty(shapeData) && !LoadCorners(shapeData)) {
        return false;
    }
    RegisterDraw();
    return true;
}

bool CRectangleShape::LoadCorners(const char* shapeData) {
    Json::Value root;
    if (!ParseJson(shapeData, root)) {
        return false;
    }
    const Json::Value& corners = MemberOf(root, name);
    if (!IsArrayOf(corners, 2)) {
        return false;
    }
    const ViewSize view = KnownViewSize();
    const PointF first = ReadRealPoint(corners[0], view);
    const PointF second = ReadRealPoint(corners[1], view);
    SetAnchorPoint(first);
    if (RebuildFromAnchor(second)) {
        state = Complete;
    }
    return true;
}

bool CRectangleShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [corners, view] = CopyFitted();
    return corners.size() >= CornerCount &&
           CopyText(PointsText(name, Truncated({corners[0], corners[2]}), view), buffer, size);
}

float CRectangleShape::OutlineThickness(const ShapeLook& look) const {
    return penStyle == PatternedPen ? 1.0F : look.Thickness();
}

void CRectangleShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.points.size() != CornerCount) {
        return;
    }
    const ColorF colour = look.Colour();
    DrawCaptionAt(look.points[0], look.Text(colour, FigureCaptionSize), look.caption, surface);
    if (!textOnly) {
        surface.DrawRectangle(&look.points[0], &look.points[2], OutlineThickness(look), &colour, penStyle);
    }
    if (mosaicEnable) {
        DrawMosaic(look.points[0], look.points[2], mosaicSize, look.size, surface);
    }
    if (look.handles && !textOnly) {
        DrawAdjustBoxes(look.points, surface, colour);
    }
}

} // namespace rulecanvas
