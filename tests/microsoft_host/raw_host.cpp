#include "support.h"

namespace rulecanvas {
namespace {

constexpr ViewID View = 7;
constexpr Bool32 JunkTrue = 0xABCDEF01;
constexpr Bool32 JunkFalse = 0xABCDEF00;

#define RESERVED(name)                                                                                                 \
    virtual void name() {                                                                                              \
        Write("a reserved operation was called\n");                                                                    \
    }
#define FIVE_RESERVED(name) RESERVED(name##0) RESERVED(name##1) RESERVED(name##2) RESERVED(name##3) RESERVED(name##4)
#define FIFTEEN_RESERVED(name) FIVE_RESERVED(name##A) FIVE_RESERVED(name##B) FIVE_RESERVED(name##C)

/// The host object and the target of the delegates.
class Host {
  public:
    FIFTEEN_RESERVED(A)
    FIFTEEN_RESERVED(B)
    FIFTEEN_RESERVED(C)
    virtual void SetInteractionHint(uint32_t value) { Write("hint %u\n", value); }
    FIVE_RESERVED(D)
    RESERVED(E)
    RESERVED(F)
    RESERVED(G)
    virtual void RequestRedraw(uint32_t value) { Write(value == 0 ? "redraw\n" : "a value\n"); }

    void Notify(const char* text, bool flag) { Write("%snotify %s", flag ? "a flag " : "", text); }
    void GetClientRect(ViewID, ClientRect* out) { *out = ClientRect{0, 0, 800, 600}; }
    Bool32 Capture(bool take) {
        Write("capture %d\n", take);
        return JunkTrue;
    }
};

template <class Method>
CDelegate Bind(Host& host, Method method) {
    CDelegate delegate = {&host, nullptr};
    static_assert(sizeof(method) == sizeof(delegate.method), "a method pointer of this compiler is one word");
    memcpy(&delegate.method, &method, sizeof(method));
    return delegate;
}

/// A handler as a host sees it that knows it as a class: `delete` is the first operation of its table.
class HandlerClass {
  public:
    virtual ~HandlerClass() { Write("the host's own handler ended\n"); }
    virtual uint32_t Kind() const { return 0; }
    virtual uintptr_t Invoke(uintptr_t, uintptr_t) { return 0; }
    virtual bool Equals(const HandlerClass*) const { return false; }
    virtual HandlerClass* Clone() const { return nullptr; }
};

HandlerClass* AsClass(const ContainerHandlerHolder& holder) {
    return reinterpret_cast<HandlerClass*>(holder.handler);
}

void Send(const ContainerHandlerHolder& mouse, uint32_t code, float x, float y) {
    const ContainerMouseEvent event = {code, View, 0, x, y, 0, 0};
    AsClass(mouse)->Invoke(0xDEAD, reinterpret_cast<uintptr_t>(&event));
}

void Drag(const ContainerHandlerHolder& mouse, const PointF& from, const PointF& to) {
    Send(mouse, RULECANVAS_MOUSE_LEFT_DOWN, from.x, from.y);
    Send(mouse, RULECANVAS_MOUSE_MOVED, to.x, to.y);
    Send(mouse, RULECANVAS_MOUSE_LEFT_UP, to.x, to.y);
}

void Paint(const ContainerHandlerHolder& draw) {
    Canvas canvas;
    AsClass(draw)->Invoke(View, reinterpret_cast<uintptr_t>(static_cast<IContainerGraphics*>(&canvas)));
}

void FetchHandlers(ContainerHandle container, ContainerHandlerHolder& mouse, ContainerHandlerHolder& draw) {
    const void* const table = mouse.table;
    Expect("a handler is handed out", GetContainerWinMouseEventHandler(container, &mouse) == 1);
    ExpectCalls("the one that the holder had is ended", "the host's own handler ended\n");
    Expect("also twice into one holder, whose table stays the host's",
           GetContainerWinMouseEventHandler(container, &mouse) == 1 && mouse.table == table);
    GetContainerDrawEventHandler(container, &draw);
    HandlerClass* const copy = AsClass(mouse)->Clone();
    Expect("a copy is another handler, equal and a bound member too",
           copy != AsClass(mouse) && AsClass(mouse)->Equals(copy) && copy->Kind() == 1);
    delete copy;
    const ContainerHandler* const raw = mouse.handler;
    Expect("equality is a whole word, and the draw handler is not equal",
           raw->table->equals(raw, raw) == 1 && raw->table->equals(raw, draw.handler) == 0);
}

} // namespace

void RunRawHost() {
    Host host;
    const ContainerHandle container = CreateVideoAnalyseContainer(&host);
    const CDelegate notify = Bind(host, &Host::Notify);
    const CDelegate clientRect = Bind(host, &Host::GetClientRect);
    const CDelegate capture = Bind(host, &Host::Capture);
    SetContainerNotifyEventDelegate(container, &notify);
    Expect("delegates are taken", SetGetContainerRectClientDelegate(container, &clientRect) == 1 &&
                                      SetCtrlContainerWinMouseCaptureDelegate(container, &capture) == 1);
    ContainerHandlerHolder mouse = {&host, reinterpret_cast<ContainerHandler*>(new HandlerClass)};
    ContainerHandlerHolder draw = {nullptr, nullptr};
    FetchHandlers(container, mouse, draw);

    EnableVideoAnalyseContainer(container, JunkFalse); // junk above a false byte is false: nothing is heard
    const ShapeID shape = CreateMainVideoAnalyseShape(container, View, "label", "Rect", "zone", "", "");
    Drag(mouse, {200, 150}, {100, 50});
    Paint(draw);
    Expect("a result is a whole word", EnableVideoAnalyseContainer(container, JunkTrue) == 1);
    Drag(mouse, {200, 150}, {100, 50});
    Send(mouse, RULECANVAS_MOUSE_LEFT_DOWN, 150, 100);
    Send(mouse, RULECANVAS_MOUSE_CURSOR_QUERY, 150, 100);
    ExpectRectangle(shape);
    char config[64];
    Expect("the configuration is read", GetVideoAnalyseShapeConfigData(container, shape, config, sizeof(config)) == 1 &&
                                            strcmp(config, "{\"zone\":[[1024,683],[2048,2048]]}\n") == 0);
    SetVideoAnalyseShapeColor(container, shape, 10, 20, 30, JunkFalse);
    SelectVideoAnalyseShape(container, shape, JunkFalse);
    Paint(draw);
    ExpectCalls("it is painted in its own colour", "at (100,50) text '' size 2 10,20,30@1 in MS Sans Serif\n"
                                                   "rect (100,50)-(200,150) width 2 10,20,30@1 pen 0\n");
    DeleteVideoAnalyseShape(container, shape);
    ExpectCalls("it gives the mouse back", "capture 0\n");

    ReleaseVideoAnalyseContainer(container);
    delete AsClass(mouse);
    delete AsClass(draw);
}

} // namespace rulecanvas
