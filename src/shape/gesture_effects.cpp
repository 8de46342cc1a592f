// How the steps of a gesture are committed, and what is said of them.

#include "shape/gesture_shape.h"
#include "shape/notifications.h"

namespace rulecanvas {

void CGestureShape::Enter(ShapeState next) {
    state = next;
    ++life;
}

void CGestureShape::Commit(Committed& committed) {
    if (committed.outcome.state) {
        Enter(*committed.outcome.state);
    } else if (committed.outcome.ChangesLife()) {
        ++life;
    }
    committed.life = life;
}

void CGestureShape::Speak(const Committed& committed, const ContainerMouseEvent* cause) {
    try {
        for (const Effect effect : committed.outcome.effects) {
            if (!IsStill(committed)) {
                return;
            }
            SpeakOne(effect, committed, cause);
        }
    } catch (...) {
        GiveUp(committed);
        throw;
    }
}

void CGestureShape::SpeakOne(Effect effect, const Committed& committed, const ContainerMouseEvent* cause) {
    switch (effect) {
    case Effect::Listen:
        return Listen();
    case Effect::StopListening:
        return StopListening();
    case Effect::TakeMouse:
        return RequestCapture(true);
    case Effect::GiveMouse:
        return RequestCapture(false);
    case Effect::TellSelection:
        return TellSelection();
    case Effect::TellState:
        return TellState(committed.previous, committed.outcome.state.value_or(Deleted));
    case Effect::TellCreation:
        if (OwnersHooks() != nullptr && cause != nullptr) {
            OwnersHooks()->CreationFinishedHook(*cause);
        }
    }
}

void CGestureShape::GiveUpGesture(ViewID view) noexcept {
    if (view == GetViewId() && IsListening()) {
        GiveUp(Committed{{}, state, life});
    }
}

/// After an exception of the host, or without memory: the gesture is over, whatever was left to say.
void CGestureShape::GiveUp(const Committed& committed) noexcept {
    {
        LockGuard guard(lock);
        if (!IsStill(committed)) {
            return;
        }
        if (state == Drawing) {
            Forget();
            Enter(Waiting);
        } else if (state == Moving || state == Adjusting) {
            Enter(Complete);
        }
    }
    MarkClaimStale();
    try {
        StopListening();
        RequestCapture(false);
    } catch (...) { // the host was told
    }
}

void CGestureShape::TellSelection() {
    if (OwnersHooks() != nullptr && OwnersHooks()->SelectNotifyHook) {
        return OwnersHooks()->SelectNotifyHook(1, 1);
    }
    IShapeContainer* owner = GetContainer();
    if (owner != nullptr && owner->HasNotifyDelegate()) {
        owner->Notify(SelectionEvent(*this));
    }
}

void CGestureShape::TellState(int previousState, int newState) {
    if (OwnersHooks() != nullptr && OwnersHooks()->StateNotifyHook) {
        return OwnersHooks()->StateNotifyHook(previousState, newState);
    }
    IShapeContainer* owner = GetContainer();
    if (owner != nullptr && owner->HasNotifyDelegate()) {
        owner->Notify(StateEvent(*this, previousState, newState));
    }
}

void CGestureShape::RequestCapture(bool take) {
    if (IShapeContainer* owner = GetContainer()) {
        owner->RequestCapture(take);
    }
}

void CGestureShape::Listen() {
    IShapeContainer* owner = GetContainer();
    if (owner == nullptr || listening.exchange(true)) {
        return;
    }
    owner->RegisterWinMouseEvent(MouseListenerKind::ButtonUp, shared_from_this());
    owner->RegisterWinMouseEvent(MouseListenerKind::MouseMoved, shared_from_this());
}

void CGestureShape::StopListening() {
    IShapeContainer* owner = GetContainer();
    if (owner != nullptr && listening.exchange(false)) {
        owner->unRegisterWinMouseEvent(MouseListenerKind::ButtonUp, *this);
        owner->unRegisterWinMouseEvent(MouseListenerKind::MouseMoved, *this);
    }
}

void CGestureShape::Dispose() {
    bool hasMouse = false;
    {
        LockGuard guard(lock);
        ++life; // whatever step is still speaking is over
        hasMouse = listening || (state == Drawing && !figure.points.empty());
    }
    if (IShapeContainer* owner = GetContainer()) {
        owner->unRegisterDrawEvent(*this);
    }
    StopListening();
    if (hasMouse) {
        RequestCapture(false);
    }
}

} // namespace rulecanvas
