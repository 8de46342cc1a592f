/// RuleCanvas for C++ hosts: everything that rulecanvas.h offers without raw words, header only.
///
/// The conventions of rulecanvas.h hold: client-area pixels, byte texts, identities that are harmless when stale, and
/// the rules for threads. Nothing here throws, except std::bad_alloc of new on the host's own side of a call. With a
/// freestanding compiler the header needs no library but operators new and delete.
#ifndef RULECANVAS_HOST_HPP
#define RULECANVAS_HOST_HPP

#include <rulecanvas/handlers.hpp>
#include <rulecanvas/host_object.hpp>
#include <rulecanvas/method.hpp>
#include <rulecanvas/surface.hpp>
#include <rulecanvas/text.hpp>

namespace rulecanvas {

/// What a new shape is made of. The texts stay the host's and are copied.
struct ShapeSettings {
    ViewID view = 0;
    const char* type = "";          ///< Registered type, for instance "Rect".
    const char* label = "";         ///< "EventName" in the shape's notifications.
    const char* name = nullptr;     ///< Names the shape and its geometry; null reads as "NoName".
    const char* configuration = ""; ///< JSON object with the geometry; empty: the user draws the shape.
    const char* option = "";        ///< JSON object with the style, or one mode word such as "EnableRBtnDelete".
};

/// Which of its two outline colours a shape uses.
enum class Outline : uint32_t { Unselected = 0, Selected = 1 };

/// One container, from its creation to its release. Movable: the addresses that the library knows do not move with it.
/// Make and end containers while no other thread calls the library, and do not end one from inside a callback of its own.
///
/// Callables given to On...() run on the thread of the call that caused them and may call any function here but the end
/// of the container. They must not throw (an exception that leaves one ends the program). They are kept until the
/// container ends, also when replaced, because one may be running then.
class Container {
  public:
    /// Makes a container, disabled. `host` stays the caller's and must outlive this object and every one it is moved
    /// into; null: no hint and no redraw is asked for. Without memory the result is false in a condition, and every call
    /// on it is harmless.
    explicit Container(HostObject* host = nullptr)
        : handle(CreateVideoAnalyseContainer(host)), mouse(handle), draw(handle) {}

    /// Releases the container and its shapes.
    ~Container() { Release(); }

    /// The source is left without a container.
    Container(Container&& other) noexcept
        : handle(other.handle), callables(static_cast<BoundCallableList&&>(other.callables)),
          mouse(static_cast<MouseHandler&&>(other.mouse)), draw(static_cast<DrawHandler&&>(other.draw)) {
        other.handle = 0;
    }
    Container& operator=(Container&& other) noexcept {
        Container mine(static_cast<Container&&>(other));
        const ContainerHandle myHandle = handle;
        handle = mine.handle;
        mine.handle = myHandle;
        callables = static_cast<BoundCallableList&&>(mine.callables);
        mouse = static_cast<MouseHandler&&>(mine.mouse);
        draw = static_cast<DrawHandler&&>(mine.draw);
        return *this;
    }

    explicit operator bool() const noexcept { return handle != 0; }
    /// For calls of rulecanvas.h; 0 without a container.
    ContainerHandle Handle() const noexcept { return handle; }

    // ---- What the library asks of the host ----

    /// `callable(const char* text)`: one line of JSON, ended by a line feed, valid during the call.
    template <class Callable>
    void OnNotify(Callable callable) {
        const CDelegate delegate = callables.Add(new Notify<Callable>(static_cast<Callable&&>(callable)));
        SetContainerNotifyEventDelegate(handle, &delegate);
    }
    /// Ends notifications.
    void IgnoreNotifications() {
        const CDelegate none = {nullptr, nullptr};
        SetContainerNotifyEventDelegate(handle, &none);
    }

    /// `callable(ViewID view)` returns the ClientRect of that view in pixels. Asked on the mouse and on the paint
    /// thread. Shapes refit themselves to what it answers for view 0, whatever view they are in. Without it no shape can
    /// be drawn by the user.
    template <class Callable>
    bool OnClientRect(Callable callable) {
        const CDelegate delegate = callables.Add(new ClientArea<Callable>(static_cast<Callable&&>(callable)));
        return IsTrue(SetGetContainerRectClientDelegate(handle, &delegate));
    }

    /// `callable(bool take)`: take the mouse for the view of the current event, or let it go.
    template <class Callable>
    bool OnCapture(Callable callable) {
        const CDelegate delegate = callables.Add(new Capture<Callable>(static_cast<Callable&&>(callable)));
        return IsTrue(SetCtrlContainerWinMouseCaptureDelegate(handle, &delegate));
    }

    /// Stored by the library and called by no shape type of this version. The target stays the host's.
    void SetAdjustPoint(const AdjustPointCoordinateDelegate& delegate) {
        SetAdjustPointCoordinateDelegate(handle, &delegate);
    }
    bool SetTranslate(const ContainerTranslateDelegate& delegate) {
        return IsTrue(SetContainerTranslateDelegate(handle, &delegate));
    }

    // ---- What the host feeds ----

    /// A disabled container, as it is at first, ignores events and draws nothing. False without a container.
    bool Enable(bool enabled = true) { return IsTrue(EnableVideoAnalyseContainer(handle, AsBool32(enabled))); }

    /// An event of the pointer at (x, y) in pixels of the view.
    void SendMouse(MouseCode code, ViewID view, float x, float y) {
        mouse({static_cast<uint32_t>(code), view, 0, x, y, 0, 0});
    }
    /// A key went down; `virtualKey` 27 is Escape. The place of the pointer goes with it.
    void SendKey(ViewID view, uint16_t virtualKey, float x = 0.0F, float y = 0.0F) {
        mouse({static_cast<uint32_t>(MouseCode::KeyDown), view, 0, x, y, 0, virtualKey});
    }
    /// Draws the figures and the tip of a view, last in the host's own paint of it. May run on a thread of its own.
    void Paint(ViewID view, IContainerGraphics& surface) const { draw(view, surface); }

    // ---- Shapes ----

    /// Makes a selected shape. 0: unknown type or refused configuration, of which a selection notification was sent
    /// nevertheless.
    ShapeID AddShape(const ShapeSettings& settings) {
        return CreateMainVideoAnalyseShape(handle, settings.view, settings.label, settings.type, settings.name,
                                           settings.configuration, settings.option);
    }
    /// Hands three words to a composite shape; 0 for every shape type of this version.
    uint32_t AddToShape(ShapeID shape, uint32_t first, uint32_t second, uint32_t third) {
        return AddVideoAnalyseShape(handle, shape, first, second, third);
    }
    /// True whether or not the shape is known; false without a container. The same holds for SetCaption, ShowShape and
    /// ShowHandles; the other calls that name a shape answer false when it is unknown.
    bool DeleteShape(ShapeID shape) { return IsTrue(DeleteVideoAnalyseShape(handle, shape)); }
    void DeleteAllShapes() { DeleteAllVideoAnalyseShape(handle); }

    /// The geometry as one line of JSON, ended by a line feed for some types, on a grid of 0..8191 over the view; empty when
    /// the shape is unknown or has no geometry yet.
    Text Configuration(ShapeID shape) const {
        return Text::ReadWith([this, shape](char* buffer, int32_t size) {
            return IsTrue(GetVideoAnalyseShapeConfigData(handle, shape, buffer, size));
        });
    }

    /// Selecting shows the handles, deselecting hides them.
    bool SelectShape(ShapeID shape, bool selected = true) {
        return IsTrue(SelectVideoAnalyseShape(handle, shape, AsBool32(selected)));
    }
    /// The selected shape with the lowest identity, or 0.
    ShapeID SelectedShape() const { return GetSelectedVideoAnalyseShapeID(handle); }
    /// Disabling also deselects and hides the handles, enabling selects; a disabled shape gets no presses.
    bool EnableShape(ShapeID shape, bool enabled = true) {
        return IsTrue(EnableVideoAnalyseShape(handle, shape, AsBool32(enabled)));
    }
    /// Throws the figure away, so that the user draws it again; an oval stays.
    bool RedrawShape(ShapeID shape) { return IsTrue(RedrawVideoAnalyseShape(handle, shape)); }
    bool ShowShape(ShapeID shape, bool visible = true) {
        return IsTrue(ShowVideoAnalyseShape(handle, shape, AsBool32(visible)));
    }
    bool ShowHandles(ShapeID shape, bool visible = true) {
        return IsTrue(SetAdjustBoxbShow(handle, shape, AsBool32(visible)));
    }
    bool SetCaption(ShapeID shape, const char* text) {
        return IsTrue(SetVideoAnalyseShapeShowName(handle, shape, text));
    }
    /// Components 0..255.
    bool SetColour(ShapeID shape, Outline outline, int32_t red, int32_t green, int32_t blue) {
        return IsTrue(SetVideoAnalyseShapeColor(handle, shape, red, green, blue, static_cast<uint32_t>(outline)));
    }
    /// -1 is none; what other numbers mean is the type's affair. The answer is 0 also on success: only a composite shape
    /// has another.
    int32_t SetDirection(ShapeID shape, int32_t direction) {
        return SetVideoAnalyseShapeDirection(handle, shape, direction);
    }
    /// How many points the user may and must give, for the types that heed it; a minimum below 3 counts as 3.
    bool SetPointLimits(ShapeID shape, int32_t maximum, int32_t minimum) {
        return IsTrue(SetVideoAnalyseShapeMaxPtNum(handle, shape, maximum, minimum));
    }

    // ---- Views ----

    /// A text in the middle of the view, until a press hits a shape there; "" removes it. False without a container.
    bool SetTip(ViewID view, const char* text) { return IsTrue(SetVideoAnalyseContainerTip(handle, view, text)); }
    /// Refits all shapes after a change of the client rectangle; painting does the same. False without a container.
    bool RefitShapes() { return IsTrue(InvalidateAllShape(handle)); }
    /// Size of the video in pixels, for shapes that count pixels.
    void SetVideoSize(int32_t width, int32_t height) { SetPixelCount(handle, width, height); }

  private:
    template <class Callable>
    class Notify final : public BoundCallable {
      public:
        explicit Notify(Callable&& given) : callable(static_cast<Callable&&>(given)) {}
        static void RULECANVAS_METHOD Run(RULECANVAS_SELF, const char* text, Bool32) noexcept {
            static_cast<Notify*>(self)->callable(text);
        }

      private:
        Callable callable;
    };

    template <class Callable>
    class ClientArea final : public BoundCallable {
      public:
        explicit ClientArea(Callable&& given) : callable(static_cast<Callable&&>(given)) {}
        static void RULECANVAS_METHOD Run(RULECANVAS_SELF, ViewID view, ClientRect* out) noexcept {
            *out = static_cast<ClientArea*>(self)->callable(view);
        }

      private:
        Callable callable;
    };

    template <class Callable>
    class Capture final : public BoundCallable {
      public:
        explicit Capture(Callable&& given) : callable(static_cast<Callable&&>(given)) {}
        static Bool32 RULECANVAS_METHOD Run(RULECANVAS_SELF, Bool32 take) noexcept {
            static_cast<Capture*>(self)->callable(IsTrue(take));
            return 1;
        }

      private:
        Callable callable;
    };

    void Release() noexcept {
        mouse.Reset();
        draw.Reset();
        if (handle != 0) {
            ReleaseVideoAnalyseContainer(handle);
        }
    }

    ContainerHandle handle;
    BoundCallableList callables;
    MouseHandler mouse;
    DrawHandler draw;
};

/// State of all shapes of all containers: a JSON array of objects with "ShapeID", "ShapeName", "ShapeType" and
/// "bSelShape", or "null" without shapes. Must not overlap any other call.
inline Text AllShapeStates() {
    return Text::ReadWith([](char* buffer, int32_t size) {
        GetVideoAnalyseAllShapestates(buffer, size);
        return *buffer != '\0';
    });
}

} // namespace rulecanvas

#endif
