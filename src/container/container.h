#pragma once

#include "container/ending_shapes.h"
#include "container/handler.h"
#include "container/host.h"
#include "container/listener_list.h"
#include "container/press_index.h"
#include "container/shape_map.h"
#include "shape/shape_container.h"
#include "shape/text.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace rulecanvas {

class PaintPass;

/// The shapes drawn over one surface of the host, which may show several views, with the host's delegates and the two
/// handlers through which the host's events and paints come in.
///
/// Made disabled; ended by Close. A call that is still running when the container is closed, because the host closed it
/// from inside a callback, keeps the memory until it returns but no longer reaches the host.
class CVideoAnalyseContainer final : public IShapeContainer {
  public:
    explicit CVideoAnalyseContainer(void* hostObject);
    ~CVideoAnalyseContainer();
    CVideoAnalyseContainer(const CVideoAnalyseContainer&) = delete;
    CVideoAnalyseContainer& operator=(const CVideoAnalyseContainer&) = delete;

    ContainerHandle GetHandle() const { return handle; }
    /// Ends the shapes, then forgets the host.
    void Close();
    /// The same without the host hearing of it, for a container that goes with the library.
    void Abandon(EndingShapes& ending) {
        BeginEnd();
        ForgetDelegates(); // of a host that may be gone, or in the middle of unloading
        EndShapes(ending);
    }

    void SetNotifyDelegate(const CDelegate& delegate) { notifyDelegate.Set(delegate); }
    void SetAdjustPointDelegate(const CDelegate& delegate) { adjustPointDelegate.Set(delegate); }
    void SetClientRectDelegate(const CDelegate& delegate) { clientRectDelegate.Set(delegate); }
    void SetCaptureDelegate(const CDelegate& delegate) { captureDelegate.Set(delegate); }
    void SetTranslateDelegate(const CDelegate& delegate) { translateDelegate.Set(delegate); }
    void CopyMouseHandler(ContainerHandlerHolder& hostHolder) { mouseHandler.CopyTo(hostHolder); }
    void CopyDrawHandler(ContainerHandlerHolder& hostHolder) { drawHandler.CopyTo(hostHolder); }

    /// Null texts as the host passed them. 0: unknown type or refused configuration.
    ShapeID CreateMainShape(ViewID view, const char* label, const char* typeName, const char* shapeName,
                            const char* config, const char* option);
    uint32_t AddToShape(ShapeID id, uint32_t first, uint32_t second, uint32_t third);
    void DeleteShape(ShapeID id);
    void DeleteAllShapes();
    bool SelectShape(ShapeID id, bool select);
    int SetShapeDirection(ShapeID id, int direction);
    void Enable(bool enable) { enabled = enable; }
    bool GetShapeConfig(ShapeID id, char* buffer, int size);
    bool RedrawShape(ShapeID id);
    ShapeID GetSelectedShape();
    void SetShowName(ShapeID id, const char* text);
    void SetTip(ViewID view, const char* text) {
        const std::lock_guard guard(tipMutex);
        tips[view] = TextOrEmpty(text);
    }

    /// Refits every shape to the view.
    void InvalidateAll();
    void SetPixelCount(int width, int height) {
        pixelCountWidth = width;
        pixelCountHeight = height;
    }

    /// The shape, or the part of a shape, of that identity; null when unknown.
    ShapePtr DeepFind(ShapeID id) const;
    ShapeSnapshot ShapesInOrder() const { return shapes.InOrder(); }

    void OnMouseEvent(const ContainerMouseEvent& event);
    void OnDraw(ViewID view, IContainerGraphics& surface);

    ClientRect GetClientRect(ViewID view) override {
        ClientRect rect{};
        clientRectDelegate(view, &rect);
        return rect;
    }
    void RequestCapture(bool take) override { captureDelegate(ToBool32(take)); }
    void RegisterWinMouseEvent(MouseListenerKind kind, const ShapePtr& listener) override {
        ListenersOf(kind).Register(listener);
    }
    void unRegisterWinMouseEvent(MouseListenerKind kind, CVideoAnalyseShape& listener) override;
    void RegisterDrawEvent(const ShapePtr& listener) override { drawListeners.Register(listener); }
    void unRegisterDrawEvent(CVideoAnalyseShape& listener) override { drawListeners.Unregister(listener); }
    void SendHostHint(uint32_t value) override { host.Call(RULECANVAS_HOST_SET_INTERACTION_HINT, value); }
    bool HasNotifyDelegate() const override { return notifyDelegate.IsSet(); }
    void Notify(const std::string& event) override { notifyDelegate(event.c_str(), 0); }
    ViewSize GetPixelCount() override { return ViewSize{pixelCountWidth, pixelCountHeight}; }
    void ClaimChanged(CVideoAnalyseShape& shape) override { pressIndex.MarkStale(shape.GetShapeId()); }
    void FitChanged() override { fitChanged = true; }

  private:
    using HitTest = CVideoAnalyseShape* (CVideoAnalyseShape::*)(const ContainerMouseEvent&, int&);

    /// The shape that an event goes to.
    struct Hit {
        ShapePtr shape;
        int level = Miss;
    };

    ShapePtr FindParent(ShapeID id) const;

    Hit FindHitShape(const ContainerMouseEvent& event, HitTest hitTest);
    void DispatchPress(const ContainerMouseEvent& event, HitTest hitTest);
    void DispatchMove(const ContainerMouseEvent& event);
    void DispatchCursorQuery(const ContainerMouseEvent& event);
    void DispatchKey(const ContainerMouseEvent& event);
    ListenerList& ListenersOf(MouseListenerKind kind);
    void Feed(MouseListenerKind kind, const ContainerMouseEvent& event);
    void RequestRedraw() { host.Call(RULECANVAS_HOST_REQUEST_REDRAW, 0); }
    void OfferToComposites(const ContainerMouseEvent& event);

    std::string TipOf(ViewID view) const;
    void DrawTip(PaintPass& pass);
    void FitAll(const ClientRect& viewZero);

    /// From now on no shape is made and the host's object is not called.
    void BeginEnd() {
        closed = true;
        host.Forget();
    }
    void ForgetDelegates();
    void EndShape(const ShapePtr& shape);
    void EndShapes(EndingShapes& ending);

    const ContainerHandle handle;
    HostDelegate<void()> adjustPointDelegate;
    HostDelegate<void(ViewID, ClientRect*)> clientRectDelegate;
    HostDelegate<Bool32(Bool32)> captureDelegate;
    HostDelegate<void(const char*, Bool32)> notifyDelegate;
    HostDelegate<void()> translateDelegate;
    std::atomic<int> pixelCountWidth{0};
    std::atomic<int> pixelCountHeight{0};
    HandlerHolder drawHandler;
    HandlerHolder mouseHandler;
    ListenerList buttonUpListeners{&CVideoAnalyseShape::buttonUpTicket};
    /// No shape type of this version listens to the right button.
    ListenerList rightButtonUpListeners{&CVideoAnalyseShape::rightButtonUpTicket};
    ListenerList mouseMovedListeners{&CVideoAnalyseShape::mouseMovedTicket};
    ShapeMap shapes;
    PressIndex pressIndex;
    /// Level of the latest hit test; moves, cursor queries and keys go by it.
    int hitLevel = Miss;
    std::atomic<bool> enabled{false};
    std::atomic<bool> closed{false};
    ListenerList drawListeners{&CVideoAnalyseShape::drawTicket};
    mutable std::mutex tipMutex;
    std::map<ViewID, std::string> tips;
    TextStyle containerTextStyle{OpaqueColour(255, 255, 0), 0.0F, "STHeitiSC-Light"};
    HostCalls host;
    /// Held while shapes are inserted, deleted or refitted, also across their calls: the thread that holds it may call
    /// back.
    platform::ContainerMutex containerMutex;
    /// What all shapes were last fitted to; guarded by `containerMutex`.
    ClientRect lastFit{};
    /// A shape is fitted to something else.
    std::atomic<bool> fitChanged{false};
    /// Where a paint copies one figure after the other; null while a paint has it.
    std::atomic<ShapeLook*> spareLook{nullptr};
};

} // namespace rulecanvas
