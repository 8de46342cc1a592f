#pragma once

#include "container/ending_shapes.h"
#include "container/handler.h"
#include "container/host.h"
#include "container/listener_list.h"
#include "container/shape_map.h"
#include "shape/shape_container.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace rulecanvas {

class LiveContainers;

/// The shapes drawn over one surface of the host, which may show several views, with the host's delegates and the two
/// handlers through which the host's events and paints come in.
///
/// Made disabled by Create; ended by Close. A call that is still running when the container is closed, because the host
/// closed it from inside a callback, keeps the memory until it returns but no longer reaches the host.
class CVideoAnalyseContainer final : public IShapeContainer,
                                     public std::enable_shared_from_this<CVideoAnalyseContainer> {
  public:
    static std::shared_ptr<CVideoAnalyseContainer> Create(void* hostObject);
    explicit CVideoAnalyseContainer(void* hostObject);
    ~CVideoAnalyseContainer();
    CVideoAnalyseContainer(const CVideoAnalyseContainer&) = delete;
    CVideoAnalyseContainer& operator=(const CVideoAnalyseContainer&) = delete;

    ContainerHandle GetHandle() const { return handle; }
    /// Ends the shapes, then forgets the host.
    void Close();
    /// The same without the host hearing of it, for a container that goes with the library.
    void Abandon(EndingShapes& ending);

    void SetNotifyDelegate(const CDelegate& delegate) { notifyDelegate.Set(delegate); }
    void SetAdjustPointDelegate(const CDelegate& delegate) { adjustPointDelegate.Set(delegate); }
    void SetClientRectDelegate(const CDelegate& delegate) { clientRectDelegate.Set(delegate); }
    void SetCaptureDelegate(const CDelegate& delegate) { captureDelegate.Set(delegate); }
    void SetTranslateDelegate(const CDelegate& delegate) { translateDelegate.Set(delegate); }
    void CopyMouseHandler(ContainerHandlerHolder& hostHolder) const { mouseHandler.CopyTo(hostHolder); }
    void CopyDrawHandler(ContainerHandlerHolder& hostHolder) const { drawHandler.CopyTo(hostHolder); }

    /// Null texts as the host passed them. 0: unknown type or refused configuration.
    ShapeID CreateMainShape(ViewID view, const char* label, const char* typeName, const char* shapeName,
                            const char* config, const char* option);
    uint32_t AddToShape(ShapeID id, uint32_t first, uint32_t second, uint32_t third);
    bool DeleteShape(ShapeID id);
    void DeleteAllShapes();
    bool SelectShape(ShapeID id, bool select);
    int SetShapeDirection(ShapeID id, int direction);
    void Enable(bool enable) { enabled = enable; }
    bool GetShapeConfig(ShapeID id, char* buffer, int size);
    bool EnableShape(ShapeID id, bool enable);
    bool RedrawShape(ShapeID id);
    ShapeID GetSelectedShape() const;
    bool SetShowName(ShapeID id, const char* text);
    void ShowShape(ShapeID id, bool show);
    void SetTip(ViewID view, const char* text);
    /// Refits every shape to the view.
    void InvalidateAll();
    void ShowAdjustBox(ShapeID id, bool show);
    bool SetShapeColor(ShapeID id, int red, int green, int blue, bool selectedColour);
    bool SetShapeMaxPtNum(ShapeID id, int maximum, int minimum);
    void SetPixelCount(int width, int height);
    ShapeSnapshot ShapesInOrder() const { return shapes.InOrder(); }

    void OnMouseEvent(const ContainerMouseEvent& event);
    void OnDraw(ViewID view, IContainerGraphics& surface);

    ClientRect GetClientRect(ViewID view) override;
    bool IsInClientArea(ViewID view, const PointF& point) override;
    bool RequestCapture(bool take) override;
    void RegisterWinMouseEvent(MouseListenerKind kind, const ShapeOwner& owner, const MouseListener& listener) override;
    void unRegisterWinMouseEvent(MouseListenerKind kind, const MouseListener& listener) override;
    void RegisterDrawEvent(const ShapeOwner& owner, const DrawListener& listener) override;
    void unRegisterDrawEvent(const DrawListener& listener) override;
    void SendHostHint(uint32_t value) override;
    void Notify(const std::string& event) override;
    ViewSize GetPixelCount() override;

  private:
    using MouseListenerList = ListenerList<const ContainerMouseEvent&>;
    using DrawListenerList = ListenerList<ViewID, IContainerGraphics*>;
    using HitTest = CVideoAnalyseShape* (CVideoAnalyseShape::*)(const ContainerMouseEvent&, int&);

    static uintptr_t RULECANVAS_THISCALL MouseOperation(void* container, uintptr_t ignored, uintptr_t event);
    static uintptr_t RULECANVAS_THISCALL DrawOperation(void* container, uintptr_t view, uintptr_t surface);

    ShapePtr DeepFind(ShapeID id) const;
    ShapePtr FindParent(ShapeID id) const;
    MouseListenerList& ListenersOf(MouseListenerKind kind);

    /// The shape that an event goes to.
    struct Hit {
        ShapePtr shape;
        int level = Miss;

        bool Exists() const { return shape != nullptr && !shape->IsRetired(); }
    };

    Hit FindHitShape(const ContainerMouseEvent& event, HitTest hitTest);
    void DispatchLeftDown(const ContainerMouseEvent& event);
    void DispatchRightDown(const ContainerMouseEvent& event, HitTest hitTest);
    void DispatchMove(const ContainerMouseEvent& event);
    void DispatchCursorQuery(const ContainerMouseEvent& event);
    void DispatchKey(const ContainerMouseEvent& event);
    void RequestRedraw();
    void OfferToAllShapes(const ContainerMouseEvent& event);

    /// No call reaches the host from now on.
    void ForgetHost();
    void EndShapes(EndingShapes& ending);
    std::string TipOf(ViewID view) const;
    void DrawTip(ViewID view, IContainerGraphics& surface);

    const ContainerHandle handle;
    const std::shared_ptr<LiveContainers> liveContainers;
    HostDelegate<void()> adjustPointDelegate;
    HostDelegate<void(ViewID, ClientRect*)> clientRectDelegate;
    HostDelegate<Bool32(Bool32)> captureDelegate;
    HostDelegate<void(const char*, Bool32)> notifyDelegate;
    HostDelegate<void()> translateDelegate;
    std::atomic<int> pixelCountWidth{0};
    std::atomic<int> pixelCountHeight{0};
    HandlerHolder drawHandler;
    HandlerHolder mouseHandler;
    MouseListenerList buttonUpListeners;
    MouseListenerList rightButtonUpListeners;
    MouseListenerList mouseMovedListeners;
    ShapeMap shapes;
    /// Level of the latest hit test; moves, cursor queries and keys go by it.
    int hitLevel = Miss;
    std::atomic<bool> enabled{false};
    std::atomic<bool> closed{false};
    DrawListenerList drawListeners;
    mutable std::mutex tipMutex;
    std::map<ViewID, std::string> tips;
    TextStyle containerTextStyle{OpaqueColour(255, 255, 0), 0.0F, "STHeitiSC-Light"};
    const HostCalls host;
    /// Held while shapes are inserted, deleted or refitted, also across their calls: the thread that holds it may call
    /// back.
    platform::Mutex containerMutex;
};

} // namespace rulecanvas
