#include "shapes/regions/oval_shape.h"

#include "geometry/hit_tests.h"
#include "shape/drawing.h"
#include "shape/notifications.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shapes/regions/oval_handles.h"

#include <algorithm>

namespace rulecanvas {

using platform::LockGuard;

namespace {

const bool registered = CShapeFactory::GetInstance().Register("OvalShape", &MakeShape<COvalShape>);

constexpr int SmallestResize = 4;
/// After a drawing the mouse is asked for once more, not given back: an oval keeps it.
constexpr Effect FinishDrawn[] = {Effect::TellState, Effect::StopListening, Effect::TakeMouse};

/// The corners of a configuration may come in any order.
bool InBox(const Points& corners, const PointF& p) {
    const auto [left, right] = std::minmax(corners[0].x, corners[2].x);
    const auto [top, bottom] = std::minmax(corners[0].y, corners[2].y);
    return left <= p.x && p.x <= right && top <= p.y && p.y <= bottom;
}

} // namespace

int COvalShape::LevelAt(const PointF& press) {
    if (!HasCorners()) {
        return Miss;
    }
    if (OnRing(figure.points, press)) {
        return OnOutline;
    }
    return InBox(figure.points, press) ? Inside : Outside;
}

Claim COvalShape::CompleteClaim() const {
    return HasCorners() ? Claim::Around(figure.points, HitReach, true) : Claim::Nowhere();
}

void COvalShape::ClearShape() {
    {
        LockGuard guard(lock);
        Forget();
    }
    MarkClaimStale();
}

bool COvalShape::RestartDrawing() {
    return true;
}

Outcome COvalShape::StartDrawing(const PointerEvent& press) {
    figure.anchorPoint = press.position;
    return ResumeDrawing(press);
}

/// A click left the oval listening: now it goes on from that click.
Outcome COvalShape::ResumeDrawing(const PointerEvent& position) {
    figure.lastPoint = position.position;
    return Begin(Drawing);
}

Outcome COvalShape::DrawTo(const PointerEvent& position) {
    figure.lastPoint = position.position;
    return {};
}

Outcome COvalShape::FinishWaiting(const PointerEvent& release) {
    return EndDrawing(release);
}

Outcome COvalShape::EndDrawing(const PointerEvent& release) {
    if (release.position == figure.anchorPoint) {
        return {Waiting, {}}; // and keeps listening: a click is as good a beginning as a press
    }
    if (!release.HasView()) {
        return {};
    }
    figure.lastPoint = release.position;
    SetCorners(figure.points, SpanRectangle(figure.anchorPoint, release.position, release.view).rect);
    return {Complete, FinishDrawn};
}

Outcome COvalShape::StartEditing(const PointerEvent& press, int /*hitLevel*/) {
    if (!HasCorners()) {
        return {};
    }
    const Points& corners = figure.points;
    figure.grabbedIndex = VertexIndex(OvalHandlePoints(corners), press.position);
    if (figure.grabbedIndex >= 0) {
        const OvalHandle& handle = OvalHandles[figure.grabbedIndex];
        figure.anchorPoint = corners[handle.anchorCorner];
        edgeFixPoint = corners[handle.keptCorner];
        return Grab(Adjusting);
    }
    return InBox(corners, press.position) ? GrabWhole(press.position) : Outcome{};
}

Outcome COvalShape::MoveTo(const PointerEvent& position) {
    FollowMouse(position.position, position.view);
    return {};
}

Outcome COvalShape::EndMove(const PointerEvent& release) {
    figure.lastPoint = release.position;
    return Finish();
}

Outcome COvalShape::AdjustTo(const PointerEvent& position) {
    DragPoint(figure.grabbedIndex, position.position, position.view);
    return {};
}

Outcome COvalShape::EndAdjust(const PointerEvent& release) {
    return EndMove(release);
}

bool COvalShape::DragPoint(int index, const PointF& to, const ClientRect& view) {
    if (index < 0 || index >= static_cast<int>(std::size(OvalHandles))) {
        return false;
    }
    const Keeps keeps = OvalHandles[index].keeps;
    const PointF dragged{keeps == Keeps::X ? edgeFixPoint.x : to.x, keeps == Keeps::Y ? edgeFixPoint.y : to.y};
    return SpanCorners(figure.anchorPoint, dragged, view, SmallestResize);
}

/// Ovals are read under this key whatever their name, but written under their name, and both are to stay so: a host
/// renames the member of what it saved before it loads it.
std::string COvalShape::GeometryKey() const {
    return "OvalShape";
}

Refused COvalShape::Load(Loading& loading) {
    const Json::Value& diagonal = loading.geometry;
    if (!IsArrayOf(diagonal, 2)) {
        return loading.Refuse("an array of 2 corners");
    }
    const PointF first = ReadPoint(diagonal[0], figure.fitted);
    if (diagonal[1].isNull()) {
        Enter(Drawing);
        return std::nullopt;
    }
    const PointF second = ReadPoint(diagonal[1], figure.fitted);
    figure.points = {first, {second.x, first.y}, second, {first.x, second.y}};
    Enter(Complete);
    return std::nullopt;
}

bool COvalShape::IsShownIn(ViewID /*view*/) const {
    LockGuard guard(lock);
    return state != Deleted && (visible || figure.anchorPoint != figure.lastPoint);
}

void COvalShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& corners = look.Path();
    const bool drawn = look.state >= Complete;
    const bool framed = corners.size() == CornerCount;
    if (drawn && !framed) {
        return;
    }
    const PointF& from = drawn ? corners[0] : look.figure.anchorPoint;
    const PointF& to = drawn ? corners[2] : look.figure.lastPoint;
    const ColorF& colour = look.Colour();
    pass.surface.DrawEllipse(&from, &to, look.SelectedThickness(), &colour);
    if (!framed) {
        return;
    }
    DrawCaptionAt(from, look.Text(colour, FigureCaptionSize), look.caption, pass.surface);
    if (look.handles) {
        DrawAdjustBoxes(OvalHandlePoints(corners), pass.surface, colour);
    }
}

/// An oval's changes of state can be followed in a debugger.
void COvalShape::TellState(int previousState, int newState) {
    platform::DebugOutput(StateEvent(*this, previousState, newState).c_str());
    CGestureShape::TellState(previousState, newState);
}

} // namespace rulecanvas
