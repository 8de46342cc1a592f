#include "shape/drawing.h"
#include "shape/notifications.h"
#include "shape/shape_factory.h"
#include "shapes/regions/box_shape.h"
#include "shapes/regions/oval_handles.h"

#include <algorithm>

namespace rulecanvas {
namespace {

/// After a drawing the mouse is asked for once more, not given back: an oval keeps it.
constexpr Effect FinishDrawn[] = {Effect::TellState, Effect::StopListening, Effect::TakeMouse};

/// The corners of a configuration may come in any order.
bool InBox(const Points& corners, const PointF& p) {
    const auto [left, right] = std::minmax(corners[0].x, corners[2].x);
    const auto [top, bottom] = std::minmax(corners[0].y, corners[2].y);
    return left <= p.x && p.x <= right && top <= p.y && p.y <= bottom;
}

/// An ellipse inscribed in its box. Presses are judged by the box, not by the ellipse. Eight handles, the corners and
/// the middles of the edges, resize it.
///
/// `anchorPoint` is the press while the oval is drawn, the last accepted mouse position while it is moved, and the
/// fixed corner while it is resized; `lastPoint` is where the mouse is while it is drawn, then where it was released.
class COvalShape final : public CBoxShape {
  public:
    /// Forgets the figure alone: an oval is cleared only on its way out, which ends its gesture too.
    void ClearShape() override {
        {
            LockGuard guard(lock);
            Forget();
        }
        MarkClaimStale();
    }

    /// An oval stays as it is: to draw another one, the host makes a new shape.
    bool RestartDrawing() override { return true; }
    bool AwaitsPaint() const override { return false; }

  private:
    bool MayStart(const PointerEvent& /*press*/) const override { return true; }
    Outcome StartDrawing(const PointerEvent& press) override {
        figure.anchorPoint = press.position;
        return ResumeDrawing(press);
    }

    Outcome DrawTo(const PointerEvent& position) override {
        figure.lastPoint = position.position;
        return {};
    }

    Outcome EndDrawing(const PointerEvent& release) override {
        if (release.position == figure.anchorPoint) {
            return {Waiting, {}}; // and keeps listening: a click is as good a beginning as a press
        }
        if (!release.HasView()) {
            return {};
        }
        figure.lastPoint = release.position;
        SetCorners(figure.points, SpanRectangle(figure.anchorPoint, release.position, release.view));
        return {Complete, FinishDrawn};
    }

    /// A click left the oval listening: now it goes on from that click.
    Outcome ResumeDrawing(const PointerEvent& position) override {
        figure.lastPoint = position.position;
        return Begin(Drawing);
    }

    Outcome FinishWaiting(const PointerEvent& release) override { return EndDrawing(release); }
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    Outcome EndMove(const PointerEvent& release) override {
        figure.lastPoint = release.position;
        return Finish();
    }
    PointF AimOf(const PointerEvent& position) const override { return position.position; }
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override {
        if (static_cast<size_t>(index) >= std::size(OvalHandles)) { // a negative one, too
            return false;
        }
        constexpr int smallestSide = 4;
        const Keeps keeps = OvalHandles[index].keeps;
        const PointF dragged{keeps == Keeps::X ? edgeFixPoint.x : to.x, keeps == Keeps::Y ? edgeFixPoint.y : to.y};
        return SpanCorners(figure.anchorPoint, dragged, view, smallestSide);
    }

    bool TakesStyle() const override { return false; }
    /// Ovals are read under this key whatever their name, but written under their name, and both are to stay so: a host
    /// renames the member of what it saved before it loads it.
    std::string GeometryKey() const override { return "OvalShape"; }
    Refused Load(Loading& loading) override;
    int LevelAt(const PointF& press) override {
        if (!HasCorners()) {
            return Miss;
        }
        if (OnRing(figure.points, press)) {
            return OnOutline;
        }
        return InBox(figure.points, press) ? Inside : Outside;
    }

    /// A press during a drag of the finished oval is nothing to it.
    bool IsBusy() const override { return state == Waiting || state == Drawing; }
    Claim CompleteClaim() const override {
        return HasCorners() ? Claim::Around(figure.points, HitReach, true) : Claim::Nowhere();
    }
    /// In every view. A hidden oval still shows as long as its last drag has an extent, so that the user sees what the
    /// mouse does.
    bool IsShownIn(ViewID /*view*/) const override {
        LockGuard guard(lock);
        return state != Deleted && (visible || figure.anchorPoint != figure.lastPoint);
    }

    void Draw(const ShapeLook& look, PaintPass& pass) override;
    /// An oval's changes of state can be followed in a debugger.
    void TellState(int previousState, int newState) override {
        platform::DebugOutput(StateEvent(*this, previousState, newState).c_str());
        CGestureShape::TellState(previousState, newState);
    }

    /// The coordinate that stays while a handle in the middle of an edge is dragged.
    PointF edgeFixPoint{};
};

const bool registered = Register<COvalShape>("OvalShape");

} // namespace

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

} // namespace rulecanvas
