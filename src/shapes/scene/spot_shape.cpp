#include "shapes/scene/spot_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shape/text.h"

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("SpotShape", &MakeShape<CSpotShape>);

PointF Offset(const PointF& point, float dx, float dy) {
    return PointF{point.x + dx, point.y + dy};
}

/// Whole pixels from a place to the border of the view.
float RoomTo(int border, float place) {
    return static_cast<float>(TruncateToInt(static_cast<double>(border) - place));
}

} // namespace

CSpotShape::CSpotShape() {
    maxPtNum = 1;
    DragPointsHook =
        decltype(DragPointsHook)::Bind<&CVideoAnalyseShape::BuildDragPoints>(static_cast<CVideoAnalyseShape*>(this));
}

/// A press beside the spot is answered even while the spot is not selected: it then counts as one that deselects.
CVideoAnalyseShape* CSpotShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (state != Complete && state != Deleted) {
        hitLevel = Busy;
    } else if (state == Complete && Covers(PositionOf(event))) {
        hitLevel = OnOutline;
        selected = true;
    } else if (state == Complete) {
        hitLevel = Outside;
    }
    return this;
}

bool CSpotShape::Covers(const PointF& press) const {
    const Points spot = CopyPoints();
    if (spot.empty()) {
        return false;
    }
    const double dx = static_cast<double>(press.x) - spot[0].x;
    const double dy = static_cast<double>(press.y) - spot[0].y;
    return dx * dx + dy * dy < static_cast<double>(radius) * radius + 1.0; // whole pixels decide
}

/// The click alone places the spot: nothing follows the mouse, and nothing is reported.
void CSpotShape::StartDrawing(const PointF& press) {
    if (AcceptsPoint(press) && state == Waiting) {
        ReplacePoints({press});
        state = Complete;
        Capture(true);
    }
}

void CSpotShape::StartEditing(const PointF& press, int hitLevel) {
    if (hitLevel == OnOutline) {
        SetAnchorPoint(press);
        Grab(Moving);
    }
}

bool CSpotShape::OnMouseMove(const PointF& position) {
    const PointF clamped = ClampToView(anchorPoint, position);
    return state != Moving || FollowMouse(clamped);
}

bool CSpotShape::OnButtonUp(const PointF& /*position*/, const ContainerMouseEvent& /*event*/) {
    return state != Moving || FinishGesture();
}

bool CSpotShape::BuildDragPoints(int /*index*/, const PointF& current, Points& out) {
    const Points spot = CopyPoints();
    if (spot.empty()) {
        return false;
    }
    out.push_back(spot[0]);
    out.front() = ClampToView(spot[0], current);
    return true;
}

void CSpotShape::Dispose() {
    ClearShape();
    CGestureShape::Dispose();
}

/// "solid" stays in force for later configurations that do not name it.
bool CSpotShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) {
    BeginConfiguration(shapeName);
    solid = solid || IsWord(styleOrMode, "solid");
    if (!IsEmpty(shapeData)) {
        return LoadSpot(shapeData);
    }
    RegisterDraw();
    return true;
}

bool CSpotShape::LoadSpot(const char* shapeData) {
    Json::Value root;
    if (!ParseJson(shapeData, root)) {
        return false;
    }
    const Json::Value& spots = MemberOf(root, name);
    if (spots.isNull()) {
        return false;
    }
    if (spots.empty()) {
        return true; // a spot that is there for the host, but never drawn
    }
    const Json::Value& givenRadius = MemberOf(root, "radius");
    if (IsPlainInteger(givenRadius)) {
        radius = givenRadius.asInt();
    }
    AppendPoint(ReadPoint(spots[0], KnownViewSize()));
    state = Complete;
    RegisterDraw();
    return true;
}

/// The radius is not written: it is the host's choice of look, not part of the place.
bool CSpotShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [spot, view] = CopyFitted();
    return !spot.empty() && CopyTextUncounted(PointsText(name, spot, view), buffer, size);
}

void CSpotShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.points.empty()) {
        return;
    }
    const float r = static_cast<float>(radius);
    const PointF topLeft = Offset(look.points[0], -r, -r);
    const PointF bottomRight = Offset(look.points[0], r, r);
    const ColorF colour = look.Colour();
    if (solid) {
        surface.FillEllipse(&topLeft, &bottomRight, look.SelectedThickness(), colour, &colour);
    } else {
        surface.DrawEllipse(&topLeft, &bottomRight, look.SelectedThickness(), &colour);
    }
    DrawCaption(look, surface);
}

/// To the right of the circle and above its middle, and on the other side of the circle where there is no room.
void CSpotShape::DrawCaption(const ShapeLook& look, IContainerGraphics& surface) const {
    const float r = static_cast<float>(radius);
    const TextStyle style = look.Text(look.Colour(), FigureCaptionSize);
    const float width = surface.MeasureText(style, look.caption.c_str());
    const float height = surface.MeasureTextHeight(style, look.caption.c_str());
    PointF at = Offset(look.points[0], r, -r);
    if (at.y - height / 2.0F < 0.0F) {
        at.y += height / 2.0F;
    }
    if (RoomTo(look.size.width, at.x) < width) {
        at.x -= width + 2.0F * r + 1.0F;
    }
    if (RoomTo(look.size.height, at.y) < height) {
        at.y -= height + r;
    }
    DrawCaptionAt(at, style, look.caption, surface);
}

} // namespace rulecanvas
