#include "container/container.h"

namespace rulecanvas {

void CVideoAnalyseContainer::OnMouseEvent(const ContainerMouseEvent& event) {
    if (!enabled) {
        return;
    }
    switch (event.code) {
    case RULECANVAS_MOUSE_LEFT_DOWN:
        return DispatchPress(event, &CVideoAnalyseShape::HitTestLButtonDown);
    case RULECANVAS_MOUSE_LEFT_UP:
        return Feed(MouseListenerKind::ButtonUp, event);
    case RULECANVAS_MOUSE_MOVED:
        return DispatchMove(event);
    case RULECANVAS_MOUSE_RIGHT_DOWN:
        return DispatchPress(event, &CVideoAnalyseShape::HitTestRButtonDown);
    case RULECANVAS_MOUSE_RIGHT_UP:
        return Feed(MouseListenerKind::RightButtonUp, event);
    case RULECANVAS_MOUSE_MOVED_EVENT:
        return Feed(MouseListenerKind::MouseMoved, event);
    case RULECANVAS_MOUSE_CURSOR_QUERY:
        return DispatchCursorQuery(event);
    case RULECANVAS_MOUSE_ALT_RIGHT_DOWN:
        return DispatchPress(event, &CVideoAnalyseShape::HitTestAltRButtonEvent);
    case RULECANVAS_MOUSE_KEY_DOWN:
        return DispatchKey(event);
    default:
        break;
    }
}

void CVideoAnalyseContainer::DispatchPress(const ContainerMouseEvent& event, HitTest hitTest) {
    const auto [shape, level] = FindHitShape(event, hitTest);
    if (shape == nullptr || shape->IsRetired()) {
        return;
    }
    if (event.code != RULECANVAS_MOUSE_LEFT_DOWN) {
        return shape->HandleRButtonEvent(event, level);
    }
    SetTip(event.viewId, "");
    shape->HandleLButtonDownEvent(PointerEvent{event, GetClientRect(event.viewId)}, level);
}

void CVideoAnalyseContainer::DispatchMove(const ContainerMouseEvent& event) {
    if (hitLevel == Busy) {
        RequestRedraw();
    }
    Feed(MouseListenerKind::MouseMoved, event);
    OfferToComposites(event);
}

void CVideoAnalyseContainer::DispatchCursorQuery(const ContainerMouseEvent& event) {
    constexpr uint32_t grabHint = 4;
    if (hitLevel == Inside || hitLevel == OnOutline) {
        SendHostHint(grabHint);
    }
    Feed(MouseListenerKind::MouseMoved, event);
}

void CVideoAnalyseContainer::DispatchKey(const ContainerMouseEvent& event) {
    constexpr uint16_t escapeKey = 27;
    if (event.keyCode == escapeKey) {
        RequestRedraw();
    }
    OfferToComposites(event);
}

/// The shape with the strongest claim, the first one of equals. A press also deselects, on its way, every selected
/// shape that it passes by.
CVideoAnalyseContainer::Hit CVideoAnalyseContainer::FindHitShape(const ContainerMouseEvent& event, HitTest hitTest) {
    const bool leftPress = event.code == RULECANVAS_MOUSE_LEFT_DOWN;
    Hit best;
    hitLevel = Miss;
    for (const ShapePtr& shape : pressIndex.FindCandidates(shapes, event.viewId, PositionOf(event))) {
        if (!shape->IsEnabled() || shape->IsRetired()) {
            continue;
        }
        int level = Miss;
        const ShapePtr answering(shape, ((*shape).*hitTest)(event, level));
        if (leftPress && answering != nullptr) {
            if (!answering->IsEnabled()) {
                break;
            }
            if (level == Outside && answering->IsSelected()) {
                answering->SelectShape(false, 1);
                answering->SetAdjustBoxShow(false);
            }
        }
        if (best.level < level) {
            best = Hit{answering, level};
        }
    }
    hitLevel = best.level; // not before: a hit test may call the host, which may send another press
    return best;
}

/// No other shape heeds what it does not listen to.
void CVideoAnalyseContainer::OfferToComposites(const ContainerMouseEvent& event) {
    for (const ShapePtr& shape : shapes.Composites()) {
        if (!shape->IsRetired()) {
            shape->HandleContainerEvent(event, hitLevel);
        }
    }
}

ListenerList& CVideoAnalyseContainer::ListenersOf(MouseListenerKind kind) {
    switch (kind) {
    case MouseListenerKind::ButtonUp:
        return buttonUpListeners;
    case MouseListenerKind::RightButtonUp:
        return rightButtonUpListeners;
    case MouseListenerKind::MouseMoved:
        break;
    }
    return mouseMovedListeners;
}

/// The host is asked for the view's rectangle once, and only when someone listens.
void CVideoAnalyseContainer::Feed(MouseListenerKind kind, const ContainerMouseEvent& event) {
    ListenerList& listeners = ListenersOf(kind);
    const auto walked = listeners.Snapshot();
    if (walked->empty()) {
        return;
    }
    try {
        const PointerEvent fed{event, GetClientRect(event.viewId)};
        listeners.Invoke(*walked, [&](CVideoAnalyseShape& shape) { shape.OnMouseListened(kind, fed); });
    } catch (...) {
        if (kind == MouseListenerKind::ButtonUp) { // a release that is lost must not leave anyone waiting for it
            listeners.Invoke(*walked, [&](CVideoAnalyseShape& shape) { shape.GiveUpGesture(event.viewId); });
        }
        throw;
    }
}

} // namespace rulecanvas
