#include "container/container.h"

namespace rulecanvas {
namespace {

constexpr uint32_t GrabHint = 4;
constexpr uint32_t Redraw = 0;
constexpr uint16_t EscapeKey = 27;

} // namespace

void CVideoAnalyseContainer::OnMouseEvent(const ContainerMouseEvent& event) {
    if (!enabled) {
        return;
    }
    switch (event.code) {
    case RULECANVAS_MOUSE_LEFT_DOWN:
        DispatchLeftDown(event);
        break;
    case RULECANVAS_MOUSE_LEFT_UP:
        buttonUpListeners.Invoke(event);
        break;
    case RULECANVAS_MOUSE_MOVED:
        DispatchMove(event);
        break;
    case RULECANVAS_MOUSE_RIGHT_DOWN:
        DispatchRightDown(event, &CVideoAnalyseShape::HitTestRButtonDown);
        break;
    case RULECANVAS_MOUSE_RIGHT_UP:
        rightButtonUpListeners.Invoke(event);
        break;
    case RULECANVAS_MOUSE_MOVED_EVENT:
        mouseMovedListeners.Invoke(event);
        break;
    case RULECANVAS_MOUSE_CURSOR_QUERY:
        DispatchCursorQuery(event);
        break;
    case RULECANVAS_MOUSE_ALT_RIGHT_DOWN:
        DispatchRightDown(event, &CVideoAnalyseShape::HitTestAltRButtonEvent);
        break;
    case RULECANVAS_MOUSE_KEY_DOWN:
        DispatchKey(event);
        break;
    default:
        break;
    }
}

void CVideoAnalyseContainer::DispatchLeftDown(const ContainerMouseEvent& event) {
    if (const ShapePtr winner = FindHitShape(event, &CVideoAnalyseShape::HitTestLButtonDown)) {
        SetTip(event.viewId, "");
        winner->HandleLButtonDownEvent(event, hitLevel);
    }
}

void CVideoAnalyseContainer::DispatchRightDown(const ContainerMouseEvent& event, HitTest hitTest) {
    if (const ShapePtr winner = FindHitShape(event, hitTest)) {
        winner->HandleRButtonEvent(event, hitLevel);
    }
}

void CVideoAnalyseContainer::DispatchMove(const ContainerMouseEvent& event) {
    if (hitLevel == Busy) {
        RequestRedraw();
    }
    mouseMovedListeners.Invoke(event);
    OfferToAllShapes(event);
}

void CVideoAnalyseContainer::DispatchCursorQuery(const ContainerMouseEvent& event) {
    if (hitLevel == Inside || hitLevel == OnOutline) {
        SendHostHint(GrabHint);
    }
    mouseMovedListeners.Invoke(event);
}

void CVideoAnalyseContainer::DispatchKey(const ContainerMouseEvent& event) {
    if (event.keyCode == EscapeKey) {
        RequestRedraw();
    }
    OfferToAllShapes(event);
}

/// The shape with the strongest claim, the first one of equals. A press also deselects, on its way, every selected
/// shape that it passes by.
ShapePtr CVideoAnalyseContainer::FindHitShape(const ContainerMouseEvent& event, HitTest hitTest) {
    const bool leftPress = event.code == RULECANVAS_MOUSE_LEFT_DOWN;
    ShapePtr winner;
    hitLevel = Miss;
    for (const ShapePtr& shape : shapes.InOrder()) {
        if (!shape->IsEnabled() || shape->GetViewId() != event.viewId || shape->IsRetired()) {
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
        if (hitLevel < level) {
            winner = answering;
            hitLevel = level;
        }
    }
    return winner == nullptr || winner->IsRetired() ? nullptr : winner;
}

void CVideoAnalyseContainer::RequestRedraw() {
    if (!closed) {
        host.RequestRedraw(Redraw);
    }
}

void CVideoAnalyseContainer::OfferToAllShapes(const ContainerMouseEvent& event) {
    for (const ShapePtr& shape : shapes.InOrder()) {
        if (!shape->IsRetired()) {
            shape->HandleContainerEvent(event, hitLevel);
        }
    }
}

} // namespace rulecanvas
