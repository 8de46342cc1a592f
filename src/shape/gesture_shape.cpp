#include "shape/gesture_shape.h"

#include "shape/geometry.h"
#include "shape/notifications.h"

#include <algorithm>

namespace rulecanvas {
CGestureShape::CGestureShape()
    : moveListener(MouseListener::Bind<&CGestureShape::HearMouseMove>(this)),
      upListener(MouseListener::Bind<&CGestureShape::HearButtonUp>(this)) {
    SelectNotifyHook = decltype(SelectNotifyHook)::Bind<&CGestureShape::SendSelection>(this);
    StateNotifyHook = decltype(StateNotifyHook)::Bind<&CGestureShape::SendState>(this);
    MoveHook = decltype(MoveHook)::Bind<&CVideoAnalyseShape::MoveShape>(static_cast<CVideoAnalyseShape*>(this));
    DrawHook = DrawListener::Bind<&CGestureShape::HearDraw>(this);
}

void CGestureShape::HandleLButtonDownEvent(const ContainerMouseEvent& event, int hitLevel) {
    const PointF press = PositionOf(event);
    switch (state) {
    case Waiting:
        StartDrawing(press);
        break;
    case Drawing:
        ContinueDrawing(press);
        break;
    case Complete:
        if (hitLevel == Outside) {
            adjustBoxShown = false;
        } else {
            StartEditing(press, hitLevel);
        }
        break;
    default:
        break;
    }
}

void CGestureShape::ContinueDrawing(const PointF& /*press*/) {}

void CGestureShape::ClearShape() {
    Disturb();
    ClearPoints();
    EndGesture();
}

bool CGestureShape::RestartDrawing() {
    state = Waiting; // first, because the host may draw the shape anew while it is cleared
    ClearShape();
    return true;
}

bool CGestureShape::MoveShape(float dx, float dy) {
    return EditPoints([&](Points& moved) {
        moved = Moved(moved, dx, dy);
        return AcceptsMoved(moved);
    });
}

void CGestureShape::Dispose() {
    Disturb();
    UnregisterDraw();
    const bool captured = InGesture() || (state == Drawing && PointCount() > 0);
    Unsubscribe();
    if (captured) {
        Capture(false);
    }
}

bool CGestureShape::IsShownIn(ViewID view) const {
    return visible && view == GetViewId() && state != Deleted;
}

void CGestureShape::PrepareToDraw() {}

bool CGestureShape::HearDraw(ViewID view, IContainerGraphics* surface) {
    if (IsShownIn(view)) {
        PrepareToDraw();
        Draw(CopyLook(), *surface);
    }
    return true;
}

void CGestureShape::BeginConfiguration(const char* shapeName) {
    Disturb();
    ClearPoints();
    NotifySelection();
    name = shapeName == nullptr ? "NoName" : shapeName;
    state = Waiting;
    selected = true;
}

void CGestureShape::BeginGesture(ShapeState gestureState) {
    Disturb();
    Subscribe(); // first: a host may send events while it takes the capture
    state = gestureState;
    Capture(true);
}

void CGestureShape::Grab(ShapeState gestureState) {
    adjustBoxShown = true;
    selected = true;
    state = gestureState; // first: a press that the host sends from inside must not grab once more
    if (NotifySelection()) {
        BeginGesture(gestureState);
    }
}

bool CGestureShape::BecomeComplete() {
    Disturb();
    const int previous = state.exchange(Complete); // first: what the host sends from inside meets a complete shape
    return NotifyState(previous, Complete);
}

bool CGestureShape::FinishGesture() {
    return BecomeComplete() && EndGesture();
}

bool CGestureShape::EndGesture() {
    Disturb(); // a step that waits for the host further up must not end the gesture again
    Unsubscribe();
    return Capture(false);
}

bool CGestureShape::NotifySelection() {
    return Undisturbed([&] { SelectNotifyHook(1, 1); });
}

bool CGestureShape::NotifyState(int previousState, int newState) {
    return Undisturbed([&] { StateNotifyHook(previousState, newState); });
}

bool CGestureShape::Capture(bool take) {
    return Undisturbed([&] { RequestCapture(take); });
}

void CGestureShape::Subscribe() {
    IShapeContainer* owner = GetContainer();
    platform::LockGuard guard(lock);
    if (owner == nullptr || subscribed) {
        return;
    }
    subscribed = true;
    try {
        owner->RegisterWinMouseEvent(MouseListenerKind::ButtonUp, weak_from_this(), upListener);
        owner->RegisterWinMouseEvent(MouseListenerKind::MouseMoved, weak_from_this(), moveListener);
    } catch (...) { // without memory: a gesture is heard whole or not at all
        Unsubscribe();
        throw;
    }
}

void CGestureShape::Unsubscribe() {
    IShapeContainer* owner = GetContainer();
    platform::LockGuard guard(lock);
    if (owner != nullptr && subscribed) {
        owner->unRegisterWinMouseEvent(MouseListenerKind::ButtonUp, upListener);
        owner->unRegisterWinMouseEvent(MouseListenerKind::MouseMoved, moveListener);
        subscribed = false;
    }
}

void CGestureShape::FinishByRightButton(int hitLevel) {
    if (hitLevel == Busy && state == Drawing) {
        FinishGesture();
    }
}

void CGestureShape::DeleteByRightButton(int hitLevel) {
    if (!enableRBtnDelete || (hitLevel != OnOutline && hitLevel != Inside)) {
        return;
    }
    const int previous = state.exchange(Deleted);
    ClearShape();
    if (state == Deleted) { // else the host began it anew
        StateNotifyHook(previous, Deleted);
    }
}

PointF CGestureShape::ClampToView(const PointF& anchor, const PointF& position) const {
    return ClampRelative(anchor, position, ViewRect());
}

bool CGestureShape::HasView() const {
    return SizeOf(ViewRect()).Known();
}

bool CGestureShape::AcceptsMoved(const Points& moved) const {
    return AcceptsPoints(moved);
}

bool CGestureShape::AcceptsPoints(const Points& candidates) const {
    return std::all_of(candidates.begin(), candidates.end(), [&](const PointF& point) { return AcceptsPoint(point); });
}

bool CGestureShape::FollowMouse(const PointF& position) {
    if (!MoveHook(position.x - anchorPoint.x, position.y - anchorPoint.y)) {
        return false;
    }
    SetAnchorPoint(position);
    return true;
}

bool CGestureShape::HearMouseMove(const ContainerMouseEvent& event) {
    return event.viewId == GetViewId() && HasView() && OnMouseMove(PositionOf(event));
}

bool CGestureShape::HearButtonUp(const ContainerMouseEvent& event) {
    return event.viewId == GetViewId() && OnButtonUp(PositionOf(event), event);
}

void CGestureShape::SendSelection(int select, int notify) {
    IShapeContainer* owner = GetContainer();
    if (owner != nullptr && select == 1 && notify == 1) {
        owner->Notify(SelectionEvent(*this));
    }
}

void CGestureShape::SendState(int previousState, int newState) {
    if (IShapeContainer* owner = GetContainer()) {
        owner->Notify(StateEvent(*this, previousState, newState));
    }
}

} // namespace rulecanvas
