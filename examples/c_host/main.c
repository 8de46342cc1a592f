/* A complete host in C: it loads a stored line, the "user" drags one end of it, and what has become of it is printed.
 * Everything is plain: a delegate is an object with a function, the surface a table of functions. */
#include <rulecanvas/rulecanvas.h>

#include <stdio.h>

enum { View = 0, FreeMemory = 1 };

/* ---- What the library asks of the host ---- */

static void RULECANVAS_THISCALL OnNotify(void* self, const char* text, Bool32 flag) {
    (void)self, (void)flag;
    printf("event %s", text);
}

static void RULECANVAS_THISCALL OnClientRect(void* self, ViewID view, ClientRect* out) {
    const ClientRect area = {0, 0, 640, 480};
    (void)self, (void)view;
    *out = area;
}

static Bool32 RULECANVAS_THISCALL OnCapture(void* self, Bool32 take) {
    (void)self;
    puts((take & 0xFF) != 0 ? "take the mouse" : "let the mouse go");
    return 1;
}

static void RULECANVAS_THISCALL OnHint(void* self, uint32_t value) {
    (void)self;
    printf("hint %u\n", (unsigned)value);
}

static void RULECANVAS_THISCALL OnRedraw(void* self, uint32_t value) {
    (void)self, (void)value;
    puts("repaint, please");
}

/* The library calls the two places that it names and no other. */
typedef void(RULECANVAS_THISCALL* HostOperation)(void* self, uint32_t value);

static HostOperation hostTable[RULECANVAS_HOST_REQUEST_REDRAW + 1];

typedef struct Host {
    const HostOperation* table;
} Host;

/* ---- The drawing surface ---- */

static void RULECANVAS_THISCALL DrawLine(IContainerGraphics* self, const PointF* from, const PointF* to, float width,
                                         const ColorF* colour, int32_t penStyle) {
    (void)self, (void)colour, (void)penStyle;
    printf("line (%g, %g) to (%g, %g), width %g\n", (double)from->x, (double)from->y, (double)to->x, (double)to->y,
           (double)width);
}

static void RULECANVAS_THISCALL DrawRectangle(IContainerGraphics* self, const PointF* topLeft,
                                              const PointF* bottomRight, float width, const ColorF* colour,
                                              int32_t penStyle) {
    (void)self, (void)width, (void)colour, (void)penStyle;
    printf("rectangle (%g, %g) to (%g, %g)\n", (double)topLeft->x, (double)topLeft->y, (double)bottomRight->x,
           (double)bottomRight->y);
}

static void RULECANVAS_THISCALL DrawCaption(IContainerGraphics* self, const char* text, const PointF* points,
                                            int32_t count, ColorF colour, int32_t format, ClientRect clip,
                                            int32_t last) {
    (void)self, (void)points, (void)count, (void)colour, (void)format, (void)clip, (void)last;
    printf("caption '%s'\n", text);
}

/* A line needs these three. A host for every type fills all places: the library calls them without a look. */
static const IContainerGraphicsTable surfaceTable = {
    .DrawLine = DrawLine, .DrawRectangle = DrawRectangle, .DrawTextAtPoints = DrawCaption};

/* ---- The host ---- */

static CDelegate Bind(void* target, void (*method)(void)) {
    CDelegate delegate;
    delegate.target = target;
    delegate.method = (void*)method;
    return delegate;
}

static void Connect(ContainerHandle container, Host* host) {
    const CDelegate notify = Bind(host, (void (*)(void))OnNotify);
    const CDelegate clientRect = Bind(host, (void (*)(void))OnClientRect);
    const CDelegate capture = Bind(host, (void (*)(void))OnCapture);
    SetContainerNotifyEventDelegate(container, &notify);
    SetGetContainerRectClientDelegate(container, &clientRect);
    SetCtrlContainerWinMouseCaptureDelegate(container, &capture);
    EnableVideoAnalyseContainer(container, 1);
}

static void Call(const ContainerHandlerHolder* holder, uintptr_t first, const void* second) {
    holder->handler->table->invoke(holder->handler, first, (uintptr_t)second);
}

static void SendMouse(const ContainerHandlerHolder* mouse, uint32_t code, float x, float y) {
    const ContainerMouseEvent event = {code, View, 0, x, y, 0, 0};
    Call(mouse, 0, &event);
}

static void EditAndPaint(const ContainerHandlerHolder* mouse, const ContainerHandlerHolder* draw) {
    const IContainerGraphics surface = {&surfaceTable};
    /* A window procedure forwards these as they come. A new shape is selected, so the press takes its end. */
    SendMouse(mouse, RULECANVAS_MOUSE_LEFT_DOWN, 500, 400);
    SendMouse(mouse, RULECANVAS_MOUSE_MOVED, 600, 100);
    SendMouse(mouse, RULECANVAS_MOUSE_CURSOR_QUERY, 600, 100);
    SendMouse(mouse, RULECANVAS_MOUSE_LEFT_UP, 600, 100);
    /* Last in the paint of the view, on top of the picture. */
    Call(draw, View, &surface);
}

int main(void) {
    Host host = {hostTable};
    ContainerHandlerHolder mouse = {0, 0};
    ContainerHandlerHolder draw = {0, 0};
    char geometry[256];
    ContainerHandle container;
    ShapeID line;
    hostTable[RULECANVAS_HOST_SET_INTERACTION_HINT] = OnHint;
    hostTable[RULECANVAS_HOST_REQUEST_REDRAW] = OnRedraw;

    container = CreateVideoAnalyseContainer(&host);
    Connect(container, &host);
    line = CreateMainVideoAnalyseShape(container, View, "crossed", "LineShape", "kerb",
                                       "{\"kerb\":[[1280,6827],[6400,6827]]}", "");
    if (line == 0 || !GetContainerWinMouseEventHandler(container, &mouse) ||
        !GetContainerDrawEventHandler(container, &draw)) {
        return 1;
    }
    SetVideoAnalyseShapeShowName(container, line, "Kerb");
    EditAndPaint(&mouse, &draw);
    if (GetVideoAnalyseShapeConfigData(container, line, geometry, sizeof(geometry))) {
        printf("geometry %s\n", geometry);
    }

    mouse.handler->table->destroy(mouse.handler, FreeMemory);
    draw.handler->table->destroy(draw.handler, FreeMemory);
    ReleaseVideoAnalyseContainer(container);
    return 0;
}
