#include "shapes/regions/oval_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/notifications.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shape/text.h"

#include <algorithm>

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("OvalShape", &MakeShape<COvalShape>);

/// Ovals are read under this key whatever their name, but written under their name, and both are to stay so: a host renames
/// the member of what it saved before it loads it.
constexpr const char* ConfigurationKey = "OvalShape";
constexpr int SmallestResize = 4;

enum class Keeps { Nothing, X, Y };

/// What stays where it is while a handle is dragged.
struct Handle {
    size_t anchorCorner;
    Keeps keeps;
    size_t keptCorner;
};

/// Clockwise from the top left, like the points of HandlesOf.
constexpr Handle Handles[] = {
    {2, Keeps::Nothing, 0}, {2, Keeps::X, 0}, {3, Keeps::Nothing, 0}, {0, Keeps::Y, 2},
    {0, Keeps::Nothing, 0}, {0, Keeps::X, 2}, {1, Keeps::Nothing, 0}, {1, Keeps::Y, 3},
};

Points HandlesOf(const Points& corners) {
    const float halfWidth = (corners[2].x - corners[0].x) / 2.0F;
    const float halfHeight = (corners[2].y - corners[0].y) / 2.0F;
    return {
        corners[0], {corners[0].x + halfWidth, corners[0].y}, corners[1], {corners[1].x, corners[1].y + halfHeight},
        corners[2], {corners[2].x - halfWidth, corners[2].y}, corners[3], {corners[3].x, corners[3].y - halfHeight}};
}

/// The corners of a configuration may come in any order.
bool InBox(const Points& corners, const PointF& p) {
    const auto [left, right] = std::minmax(corners[0].x, corners[2].x);
    const auto [top, bottom] = std::minmax(corners[0].y, corners[2].y);
    return left <= p.x && p.x <= right && top <= p.y && p.y <= bottom;
}

} // namespace

COvalShape::COvalShape() {
    StateNotifyHook = decltype(StateNotifyHook)::Bind<&COvalShape::SendState>(this);
}

CVideoAnalyseShape* COvalShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    const PointF press = PositionOf(event);
    const Points corners = CopyPoints();
    if (state == Waiting || state == Drawing) {
        hitLevel = Busy;
    } else if (state == Complete && corners.size() == CornerCount) {
        if (OnRing(corners, press)) {
            hitLevel = OnOutline;
        } else {
            hitLevel = InBox(corners, press) ? Inside : Outside;
        }
    }
    return this;
}

void COvalShape::GetShapePoints(Points& out) const {
    AppendPointsTo(out);
}

void COvalShape::ClearShape() {
    ClearPoints();
}

bool COvalShape::RestartDrawing() {
    return true;
}

void COvalShape::StartDrawing(const PointF& press) {
    SetAnchorPoint(press);
    SetLastPoint(press);
    BeginGesture(Drawing);
}

void COvalShape::StartEditing(const PointF& press, int /*hitLevel*/) {
    const Points corners = CopyPoints();
    if (corners.size() != CornerCount) {
        return;
    }
    grabbedIndex = VertexIndex(HandlesOf(corners), press);
    if (grabbedIndex >= 0) {
        const Handle& handle = Handles[grabbedIndex];
        SetAnchorPoint(corners[handle.anchorCorner]);
        edgeFixPoint = corners[handle.keptCorner];
        Grab(Adjusting);
    } else if (InBox(corners, press)) {
        SetAnchorPoint(press);
        Grab(Moving);
    }
}

bool COvalShape::OnMouseMove(const PointF& position) {
    switch (state) {
    case Waiting: // a click left the oval listening: now it goes on from that click
        SetLastPoint(position);
        BeginGesture(Drawing);
        break;
    case Drawing:
        SetLastPoint(position);
        break;
    case Moving:
        FollowMouse(position);
        break;
    case Adjusting:
        Resize(position);
        break;
    default:
        break;
    }
    return true;
}

bool COvalShape::Resize(const PointF& position) {
    const Keeps keeps = Handles[grabbedIndex].keeps;
    const PointF dragged{keeps == Keeps::X ? edgeFixPoint.x : position.x,
                         keeps == Keeps::Y ? edgeFixPoint.y : position.y};
    return EditPoints([&](Points& corners) {
        const ClientRect rect = SpanRectangle(anchorPoint, dragged, ViewRect()).rect;
        const ViewSize size = SizeOf(rect);
        corners = CornersOf(rect);
        return size.width >= SmallestResize && size.height >= SmallestResize;
    });
}

bool COvalShape::OnButtonUp(const PointF& position, const ContainerMouseEvent& /*event*/) {
    switch (state) {
    case Waiting:
    case Drawing:
        return FinishDrawing(position);
    case Moving:
    case Adjusting:
        SetLastPoint(position);
        return FinishGesture();
    default:
        return true;
    }
}

bool COvalShape::FinishDrawing(const PointF& release) {
    if (release == anchorPoint) {
        state = Waiting; // and keeps listening: a click is as good a beginning as a press
        return false;
    }
    const int stateBefore = state;
    const ClientRect view = ViewRect();
    if (!SizeOf(view).Known() || stateBefore != state) {
        return false;
    }
    SetLastPoint(release);
    ReplacePoints(CornersOf(SpanRectangle(anchorPoint, release, view).rect));
    if (!BecomeComplete()) {
        return false;
    }
    Unsubscribe();
    return Capture(true); // after a drawing the mouse is asked for once more, not given back: an oval keeps it
}

bool COvalShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* /*styleOrMode*/) {
    BeginConfiguration(shapeName);
    if (!IsEmpty(shapeData) && !LoadCorners(shapeData)) {
        return false;
    }
    RegisterDraw();
    return true;
}

bool COvalShape::LoadCorners(const char* shapeData) {
    Json::Value root;
    if (!ParseJson(shapeData, root)) {
        return false;
    }
    const Json::Value& diagonal = MemberOf(root, ConfigurationKey);
    if (!IsArrayOf(diagonal, 2)) {
        return false;
    }
    const ViewSize view = FittedSize();
    const PointF first = ReadPoint(diagonal[0], view);
    if (diagonal[1].isNull()) {
        state = Drawing;
        return true;
    }
    const PointF second = ReadPoint(diagonal[1], view);
    ReplacePoints({first, {second.x, first.y}, second, {first.x, second.y}});
    state = Complete;
    return true;
}

bool COvalShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [corners, view] = CopyFitted();
    return corners.size() >= CornerCount &&
           CopyText(PointsText(name, Truncated({corners[0], corners[2]}), view), buffer, size);
}

bool COvalShape::IsShownIn(ViewID /*view*/) const {
    platform::LockGuard guard(lock);
    return state != Deleted && (visible || anchorPoint != lastPoint);
}

void COvalShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    const bool drawn = look.state >= Complete;
    const bool framed = look.points.size() == CornerCount;
    if (drawn && !framed) {
        return;
    }
    const PointF& from = drawn ? look.points[0] : look.anchorPoint;
    const PointF& to = drawn ? look.points[2] : look.lastPoint;
    const ColorF colour = look.Colour();
    surface.DrawEllipse(&from, &to, look.SelectedThickness(), &colour);
    if (!framed) {
        return;
    }
    DrawCaptionAt(from, look.Text(colour, FigureCaptionSize), look.caption, surface);
    if (look.handles) {
        DrawAdjustBoxes(HandlesOf(look.points), surface, colour);
    }
}

/// An oval's changes of state can be followed in a debugger.
void COvalShape::SendState(int previousState, int newState) {
    platform::DebugOutput(StateEvent(*this, previousState, newState).c_str());
    CGestureShape::SendState(previousState, newState);
}

} // namespace rulecanvas
