/* RuleCanvas for C++ hosts: everything that rulecanvas.h offers without raw words, header only.
 *
 * The conventions of rulecanvas.h hold: client-area pixels, byte texts, identities that are harmless when stale, and
 * the rules for threads. Nothing here throws, except std::bad_alloc of new on the host's own side of a call. With a
 * freestanding compiler the header needs no library but operators new and delete. */
#ifndef RULECANVAS_HOST_HPP
#define RULECANVAS_HOST_HPP

#include <rulecanvas/handlers.hpp>
#include <rulecanvas/host_object.hpp>
#include <rulecanvas/method.hpp>
#include <rulecanvas/surface.hpp>
#include <rulecanvas/text.hpp>

namespace rulecanvas {

/* What a new shape is made of. The texts stay the host's and are copied. */
struct ShapeSettings {
    ViewID view = 0;
    const char* type = "";          /* Registered type, for instance "Rect". */
    const char* label = "";         /* "EventName" in the shape's notifications. */
    const char* name = nullptr;     /* Names the shape and its geometry; null reads as "NoName". */
    const char* configuration = ""; /* JSON object with the geometry; empty: the user draws the shape. */
    const char* option = "";        /* JSON object with the style, or one mode word such as "EnableRBtnDelete". */
};

/* Which of its two outline colours a shape uses. */
enum class Outline : uint32_t { unselected = 0, selected = 1 };

/* One container, from its creation to its release. Movable: the addresses that the library knows do not move with it.
 * Make and end containers while no other thread calls the library, and do not end one from inside a callback of its own.
 *
 * Callables given to on...() run on the thread of the call that caused them and may call any function here but the end
 * of the container. They must not throw (an exception that leaves one ends the program). They are kept until the
 * container ends, also when replaced, because one may be running then. */
class Container {
  public:
    /* Makes a container, disabled. `host` stays the caller's and must outlive this object and every one it is moved
     * into; null: no hint and no redraw is asked for. Without memory the result is false in a condition, and every call
     * on it is harmless. */
    explicit Container(HostObject* host = nullptr)
        : m_handle(CreateVideoAnalyseContainer(host)), m_mouse(m_handle), m_draw(m_handle) {}

    /* Releases the container and its shapes. */
    ~Container() { release(); }

    /* The source is left without a container. */
    Container(Container&& other) noexcept
        : m_handle(other.m_handle), m_callables(static_cast<BoundCallableList&&>(other.m_callables)),
          m_mouse(static_cast<MouseHandler&&>(other.m_mouse)), m_draw(static_cast<DrawHandler&&>(other.m_draw)) {
        other.m_handle = 0;
    }
    Container& operator=(Container&& other) noexcept {
        Container mine(static_cast<Container&&>(other));
        const ContainerHandle handle = m_handle;
        m_handle = mine.m_handle;
        mine.m_handle = handle;
        m_callables = static_cast<BoundCallableList&&>(mine.m_callables);
        m_mouse = static_cast<MouseHandler&&>(mine.m_mouse);
        m_draw = static_cast<DrawHandler&&>(mine.m_draw);
        return *this;
    }

    explicit operator bool() const noexcept { return m_handle != 0; }
    /* For calls of rulecanvas.h; 0 without a container. */
    ContainerHandle handle() const noexcept { return m_handle; }

    /* ---- What the library asks of the host ---- */

    /* `callable(const char* text)`: one line of JSON, ended by a line feed, valid during the call. */
    template <class Callable>
    void onNotify(Callable callable) {
        const CDelegate delegate = m_callables.add(new Notify<Callable>(static_cast<Callable&&>(callable)));
        SetContainerNotifyEventDelegate(m_handle, &delegate);
    }
    /* Ends notifications. */
    void ignoreNotifications() {
        const CDelegate none = {nullptr, nullptr};
        SetContainerNotifyEventDelegate(m_handle, &none);
    }

    /* `callable(ViewID view)` returns the ClientRect of that view in pixels. Asked on the mouse and on the paint
     * thread. Shapes refit themselves to what it answers for view 0. Without it no shape can be drawn by the user. */
    template <class Callable>
    bool onClientRect(Callable callable) {
        const CDelegate delegate = m_callables.add(new ClientArea<Callable>(static_cast<Callable&&>(callable)));
        return isTrue(SetGetContainerRectClientDelegate(m_handle, &delegate));
    }

    /* `callable(bool take)`: take the mouse for the view of the current event, or let it go. */
    template <class Callable>
    bool onCapture(Callable callable) {
        const CDelegate delegate = m_callables.add(new Capture<Callable>(static_cast<Callable&&>(callable)));
        return isTrue(SetCtrlContainerWinMouseCaptureDelegate(m_handle, &delegate));
    }

    /* Stored by the library and called by no shape type of this version. The target stays the host's. */
    void setAdjustPoint(const AdjustPointCoordinateDelegate& delegate) {
        SetAdjustPointCoordinateDelegate(m_handle, &delegate);
    }
    bool setTranslate(const ContainerTranslateDelegate& delegate) {
        return isTrue(SetContainerTranslateDelegate(m_handle, &delegate));
    }

    /* ---- What the host feeds ---- */

    /* A disabled container, as it is at first, ignores events and draws nothing. False without a container. */
    bool enable(bool enabled = true) { return isTrue(EnableVideoAnalyseContainer(m_handle, toBool32(enabled))); }

    /* An event of the pointer at (x, y) in pixels of the view. */
    void sendMouse(MouseCode code, ViewID view, float x, float y) {
        m_mouse({static_cast<uint32_t>(code), view, 0, x, y, 0, 0});
    }
    /* A key went down; `virtualKey` 27 is Escape. The place of the pointer goes with it. */
    void sendKey(ViewID view, uint16_t virtualKey, float x = 0.0F, float y = 0.0F) {
        m_mouse({static_cast<uint32_t>(MouseCode::keyDown), view, 0, x, y, 0, virtualKey});
    }
    /* Draws the figures and the tip of a view, last in the host's own paint of it. May run on a thread of its own. */
    void paint(ViewID view, IContainerGraphics& surface) const { m_draw(view, surface); }

    /* ---- Shapes ---- */

    /* Makes a selected shape. 0: unknown type or refused configuration. */
    ShapeID addShape(const ShapeSettings& settings) {
        return CreateMainVideoAnalyseShape(m_handle, settings.view, settings.label, settings.type, settings.name,
                                           settings.configuration, settings.option);
    }
    /* Hands three words to a composite shape; 0 for every shape type of this version. */
    uint32_t addToShape(ShapeID shape, uint32_t first, uint32_t second, uint32_t third) {
        return AddVideoAnalyseShape(m_handle, shape, first, second, third);
    }
    /* True whether or not the shape is known; false without a container. The same holds for setCaption, showShape and
     * showHandles; the other calls that name a shape answer false when it is unknown. */
    bool deleteShape(ShapeID shape) { return isTrue(DeleteVideoAnalyseShape(m_handle, shape)); }
    void deleteAllShapes() { DeleteAllVideoAnalyseShape(m_handle); }

    /* The geometry as one line of JSON, ended by a line feed for some types, on a grid of 0..8191 over the view; empty when
     * the shape is unknown or has no geometry yet. */
    Text configuration(ShapeID shape) const {
        return Text::readWith([this, shape](char* buffer, int32_t size) {
            return isTrue(GetVideoAnalyseShapeConfigData(m_handle, shape, buffer, size));
        });
    }

    /* Selecting shows the handles, deselecting hides them. */
    bool selectShape(ShapeID shape, bool selected = true) {
        return isTrue(SelectVideoAnalyseShape(m_handle, shape, toBool32(selected)));
    }
    /* The selected shape with the lowest identity, or 0. */
    ShapeID selectedShape() const { return GetSelectedVideoAnalyseShapeID(m_handle); }
    /* Disabling also deselects and hides the handles, enabling selects; a disabled shape gets no presses. */
    bool enableShape(ShapeID shape, bool enabled = true) {
        return isTrue(EnableVideoAnalyseShape(m_handle, shape, toBool32(enabled)));
    }
    /* Throws the figure away, so that the user draws it again. */
    bool redrawShape(ShapeID shape) { return isTrue(RedrawVideoAnalyseShape(m_handle, shape)); }
    bool showShape(ShapeID shape, bool visible = true) {
        return isTrue(ShowVideoAnalyseShape(m_handle, shape, toBool32(visible)));
    }
    bool showHandles(ShapeID shape, bool visible = true) {
        return isTrue(SetAdjustBoxbShow(m_handle, shape, toBool32(visible)));
    }
    bool setCaption(ShapeID shape, const char* text) {
        return isTrue(SetVideoAnalyseShapeShowName(m_handle, shape, text));
    }
    /* Components 0..255. */
    bool setColour(ShapeID shape, Outline outline, int32_t red, int32_t green, int32_t blue) {
        return isTrue(SetVideoAnalyseShapeColor(m_handle, shape, red, green, blue, static_cast<uint32_t>(outline)));
    }
    /* -1..5. The answer is 0 also on success: only a composite shape has another. */
    int32_t setDirection(ShapeID shape, int32_t direction) {
        return SetVideoAnalyseShapeDirection(m_handle, shape, direction);
    }
    /* How many points the user may and must give; a minimum below 3 counts as 3. */
    bool setPointLimits(ShapeID shape, int32_t maximum, int32_t minimum) {
        return isTrue(SetVideoAnalyseShapeMaxPtNum(m_handle, shape, maximum, minimum));
    }

    /* ---- Views ---- */

    /* A text in the middle of the view, until a press hits a shape there; "" removes it. False without a container. */
    bool setTip(ViewID view, const char* text) { return isTrue(SetVideoAnalyseContainerTip(m_handle, view, text)); }
    /* Refits all shapes after a change of the client rectangle; painting does the same. False without a container. */
    bool refitShapes() { return isTrue(InvalidateAllShape(m_handle)); }
    /* Size of the video in pixels, for shapes that count pixels. */
    void setVideoSize(int32_t width, int32_t height) { SetPixelCount(m_handle, width, height); }

  private:
    template <class Callable>
    class Notify final : public BoundCallable {
      public:
        explicit Notify(Callable&& callable) : m_callable(static_cast<Callable&&>(callable)) {}
        static void RULECANVAS_METHOD run(RULECANVAS_SELF, const char* text, Bool32) noexcept {
            static_cast<Notify*>(self)->m_callable(text);
        }

      private:
        Callable m_callable;
    };

    template <class Callable>
    class ClientArea final : public BoundCallable {
      public:
        explicit ClientArea(Callable&& callable) : m_callable(static_cast<Callable&&>(callable)) {}
        static void RULECANVAS_METHOD run(RULECANVAS_SELF, ViewID view, ClientRect* out) noexcept {
            *out = static_cast<ClientArea*>(self)->m_callable(view);
        }

      private:
        Callable m_callable;
    };

    template <class Callable>
    class Capture final : public BoundCallable {
      public:
        explicit Capture(Callable&& callable) : m_callable(static_cast<Callable&&>(callable)) {}
        static Bool32 RULECANVAS_METHOD run(RULECANVAS_SELF, Bool32 take) noexcept {
            static_cast<Capture*>(self)->m_callable(isTrue(take));
            return 1;
        }

      private:
        Callable m_callable;
    };

    void release() noexcept {
        m_mouse.reset();
        m_draw.reset();
        if (m_handle != 0) {
            ReleaseVideoAnalyseContainer(m_handle);
        }
    }

    ContainerHandle m_handle;
    BoundCallableList m_callables;
    MouseHandler m_mouse;
    DrawHandler m_draw;
};

/* State of all shapes of all containers: a JSON array of objects with "ShapeID", "ShapeName", "ShapeType" and
 * "bSelShape", or "null" without shapes. Must not overlap any other call. */
inline Text allShapeStates() {
    return Text::readWith([](char* buffer, int32_t size) {
        GetVideoAnalyseAllShapestates(buffer, size);
        return *buffer != '\0';
    });
}

} // namespace rulecanvas

#endif
