#include "container/container.h"

#include "shape/debug_trace.h"
#include "shape/geometry.h"
#include "shape/shape_factory.h"
#include "shape/text.h"

#include <utility>

namespace rulecanvas {

using platform::LockGuard;

namespace {

/// Ends a shape that was never handed to the host.
class UnfinishedShape {
  public:
    explicit UnfinishedShape(ShapePtr unfinished) : shape(std::move(unfinished)) {}
    ~UnfinishedShape() {
        if (shape != nullptr) {
            EndingShapes().Add(shape);
        }
    }
    UnfinishedShape(const UnfinishedShape&) = delete;
    UnfinishedShape& operator=(const UnfinishedShape&) = delete;

    CVideoAnalyseShape* operator->() const { return shape.get(); }
    const ShapePtr& Get() const { return shape; }
    ShapePtr Finish() { return std::exchange(shape, nullptr); }

  private:
    ShapePtr shape;
};

} // namespace

ShapeID CVideoAnalyseContainer::CreateMainShape(ViewID view, const char* label, const char* typeName,
                                                const char* shapeName, const char* config, const char* option) {
    ShapePtr made = CShapeFactory::GetInstance().CreateShape(TextOrEmpty(typeName));
    if (made == nullptr) {
        return 0;
    }
    UnfinishedShape shape(std::move(made));
    shape->AdjustPointCoordinateHook =
        Delegate<bool(ViewID, const PointF&)>::Bind<&CVideoAnalyseContainer::IsInClientArea>(this);
    shape->SetContainer(this);
    shape->SetEventName(label);
    shape->SetViewId(view);
    shape->SelectShape(true, 0);
    if (!shape->SetVideoAnalyseShapeData(shapeName, config, option) || closed) {
        return 0;
    }
    LockGuard guard(containerMutex);
    shapes.Insert(shape.Get());
    return shape.Finish()->GetShapeId();
}

uint32_t CVideoAnalyseContainer::AddToShape(ShapeID id, uint32_t first, uint32_t second, uint32_t third) {
    const ShapePtr shape = shapes.Find(id);
    return shape == nullptr ? 0 : shape->AddSubShape(first, second, third);
}

bool CVideoAnalyseContainer::DeleteShape(ShapeID id) {
    const ShapePtr shape = shapes.Find(id);
    LockGuard guard(containerMutex);
    if (shape == nullptr) {
        if (const ShapePtr parent = FindParent(id)) {
            parent->RemoveSubShape(id);
        }
    } else if (shape->ClaimRetirement()) {
        shape->ClearShape();
        shapes.Erase(id);
        EndingShapes().AddClaimed(shape);
    }
    return true;
}

void CVideoAnalyseContainer::DeleteAllShapes() {
    LockGuard guard(containerMutex);
    EndingShapes ending;
    EndShapes(ending);
}

void CVideoAnalyseContainer::EndShapes(EndingShapes& ending) {
    DebugTrace("DeleteAllVideoAnalyseShape\n");
    LockGuard guard(containerMutex);
    for (const auto& [id, shape] : shapes.TakeAll()) {
        ending.Add(shape);
    }
}

bool CVideoAnalyseContainer::SelectShape(ShapeID id, bool select) {
    const ShapePtr shape = DeepFind(id);
    return shape != nullptr && shape->SelectShape(select, 1);
}

int CVideoAnalyseContainer::SetShapeDirection(ShapeID id, int direction) {
    if (const ShapePtr shape = shapes.Find(id)) {
        shape->SetShapeDirection(id, direction);
    }
    const ShapePtr parent = FindParent(id);
    return parent == nullptr ? 0 : parent->SetShapeDirection(id, direction);
}

bool CVideoAnalyseContainer::GetShapeConfig(ShapeID id, char* buffer, int size) {
    const ShapePtr shape = DeepFind(id);
    return shape != nullptr && shape->GetVideoAnalyseShapeConfigData(buffer, size);
}

bool CVideoAnalyseContainer::EnableShape(ShapeID id, bool enable) {
    const ShapePtr shape = DeepFind(id);
    return shape != nullptr && shape->EnableShape(enable);
}

bool CVideoAnalyseContainer::RedrawShape(ShapeID id) {
    ShapePtr shape = shapes.Find(id);
    if (shape == nullptr) {
        shape = FindParent(id);
    }
    return shape != nullptr && shape->RestartDrawing();
}

ShapeID CVideoAnalyseContainer::GetSelectedShape() const {
    for (const ShapePtr& shape : shapes.InOrder()) {
        if (shape->IsSelected()) {
            return shape->GetShapeId();
        }
    }
    return 0;
}

bool CVideoAnalyseContainer::SetShowName(ShapeID id, const char* text) {
    if (const ShapePtr shape = shapes.Find(id)) {
        shape->SetShowNameText(text);
        return true;
    }
    const ShapePtr parent = FindParent(id);
    if (parent != nullptr) {
        parent->SetSubShapeShowName(id, text);
    }
    return parent != nullptr;
}

void CVideoAnalyseContainer::ShowShape(ShapeID id, bool show) {
    if (const ShapePtr shape = DeepFind(id)) {
        shape->ShowShape(show);
    }
}

void CVideoAnalyseContainer::SetTip(ViewID view, const char* text) {
    const std::lock_guard<std::mutex> guard(tipMutex);
    tips[view] = TextOrEmpty(text);
}

void CVideoAnalyseContainer::ShowAdjustBox(ShapeID id, bool show) {
    if (const ShapePtr shape = DeepFind(id)) {
        shape->SetAdjustBoxShow(show);
    }
}

bool CVideoAnalyseContainer::SetShapeColor(ShapeID id, int red, int green, int blue, bool selectedColour) {
    const ShapePtr shape = DeepFind(id);
    return shape != nullptr && shape->SetShapeColor(red, green, blue, selectedColour);
}

bool CVideoAnalyseContainer::SetShapeMaxPtNum(ShapeID id, int maximum, int minimum) {
    const ShapePtr shape = DeepFind(id);
    if (shape != nullptr) {
        shape->SetMaxPtNum(maximum, minimum);
    }
    return shape != nullptr;
}

void CVideoAnalyseContainer::SetPixelCount(int width, int height) {
    pixelCountWidth = width;
    pixelCountHeight = height;
}

ShapePtr CVideoAnalyseContainer::DeepFind(ShapeID id) const {
    if (ShapePtr shape = shapes.Find(id)) {
        return shape;
    }
    const ShapePtr parent = FindParent(id);
    return parent == nullptr ? nullptr : ShapePtr(parent, parent->FindSubShape(id));
}

ShapePtr CVideoAnalyseContainer::FindParent(ShapeID id) const {
    for (const ShapePtr& shape : shapes.InOrder()) {
        if (shape->FindSubShape(id) != nullptr) {
            return shape;
        }
    }
    return nullptr;
}

void CVideoAnalyseContainer::InvalidateAll() {
    LockGuard guard(containerMutex);
    for (const ShapePtr& shape : shapes.InOrder()) {
        shape->FitToClientRect();
    }
}

ClientRect CVideoAnalyseContainer::GetClientRect(ViewID view) {
    ClientRect rect{};
    clientRectDelegate(view, &rect);
    return rect;
}

bool CVideoAnalyseContainer::IsInClientArea(ViewID view, const PointF& point) {
    const ViewSize size = SizeOf(GetClientRect(view));
    return InRectangle(ClientRect{0, 0, size.width, size.height}, point);
}

bool CVideoAnalyseContainer::RequestCapture(bool take) {
    return ReadBool(captureDelegate(ToBool32(take)));
}

CVideoAnalyseContainer::MouseListenerList& CVideoAnalyseContainer::ListenersOf(MouseListenerKind kind) {
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

void CVideoAnalyseContainer::RegisterWinMouseEvent(MouseListenerKind kind, const ShapeOwner& owner,
                                                   const MouseListener& listener) {
    ListenersOf(kind).Register(owner, listener);
}

void CVideoAnalyseContainer::unRegisterWinMouseEvent(MouseListenerKind kind, const MouseListener& listener) {
    if (kind == MouseListenerKind::MouseMoved) {
        DebugTrace("unRegisterWinMouseEvent:MOUSE_MOVED_EVENT\n");
    }
    ListenersOf(kind).Unregister(listener);
}

void CVideoAnalyseContainer::RegisterDrawEvent(const ShapeOwner& owner, const DrawListener& listener) {
    drawListeners.Register(owner, listener);
}

void CVideoAnalyseContainer::unRegisterDrawEvent(const DrawListener& listener) {
    drawListeners.Unregister(listener);
}

void CVideoAnalyseContainer::SendHostHint(uint32_t value) {
    if (!closed) {
        host.SetInteractionHint(value);
    }
}

void CVideoAnalyseContainer::Notify(const std::string& event) {
    notifyDelegate(event.c_str(), 0);
}

ViewSize CVideoAnalyseContainer::GetPixelCount() {
    return ViewSize{pixelCountWidth, pixelCountHeight};
}

} // namespace rulecanvas
