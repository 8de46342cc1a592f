#include "support.h"

#include <rulecanvas/host.hpp>

namespace rulecanvas {

extern "C" void DrawByTable(void* surface);

namespace {

constexpr ViewID View = 3;

ShapeID Add(Container& container, const char* type, const char* configuration, const char* option,
            const char* caption) {
    const ShapeID shape = container.AddShape({View, type, "label", "zone", configuration, option});
    container.SetCaption(shape, caption);
    return shape;
}

void CheckSurface() {
    Canvas canvas;
    DrawByTable(static_cast<IContainerGraphics*>(&canvas));
    ExpectCalls("a surface has its operations at their places",
                "line (1,2)-(3,4) width 1 6,7,8@5 pen 2\n"
                "at (1,2) text 'text' size 13 10,11,12@9 in face\n"
                "disc (1,2)-(3,4) width 3 6,7,8@5 pen 0\n"
                "outline (1,2)-(3,4) width 3 10,11,12@9 pen 0\n"
                "ellipse (1,2)-(3,4) width 4 6,7,8@5 pen 0\n"
                "rect (1,2)-(3,4) width 5 6,7,8@5 pen 6\n"
                "width of 'w' size 13 10,11,12@9 in face\n"
                "height of 'h' size 13 10,11,12@9 in face\n"
                "caption 'caption' of 1 points in 14,15,16,17\n"
                "points (41.5,12.5)-(41.5,12.5) width 0 6,7,8@5 pen 0\n"
                "layer\nlayer at 18,19\nlayer of 20x21\nfill (1,2)-(3,4) width 0 6,7,8@5 pen 0\n");
}

/// Figures that together use all drawing operations.
void CheckDrawing(Container& container) {
    Add(container, "LineShape", "{\"zone\":[[0,0],[4096,8191]]}", "", "line");
    Add(container, "SpotShape", "{\"zone\":[[8191,8191]]}", "", "ring");
    Add(container, "SpotShape", "{\"zone\":[[0,0]],\"radius\":8}", "solid", "disc");
    const char* const mosaic = "{\"mosaic\":{\"enable\":true,\"size\":50}}";
    container.SelectShape(Add(container, "Rect", "{\"zone\":[[1024,2048],[2048,4096]]}", mosaic, "box"), false);
    Canvas canvas;
    container.Paint(View, canvas);
    ExpectCalls("all drawing operations arrive, floats and records come through",
                "line (0,0)-(200,300) width 2 255,255,0@1 pen 0\n"
                "caption 'line' of 2 points in 0,0,400,300\n"
                "points (0,0)-(200,300) width 0 255,255,0@1 pen 0\n"
                "rect (-3,-3)-(3,3) width 2 255,255,0@1 pen 0\n"
                "rect (197,297)-(203,303) width 2 255,255,0@1 pen 0\n"
                "ellipse (395,295)-(405,305) width 2 255,255,0@1 pen 0\n"
                "width of 'ring' size 2 255,255,0@1 in MS Sans Serif\n"
                "height of 'ring' size 2 255,255,0@1 in MS Sans Serif\n"
                "at (352.5,277.5) text 'ring' size 2 255,255,0@1 in MS Sans Serif\n"
                "disc (-8,-8)-(8,8) width 2 255,255,0@1 pen 0\n"
                "outline (-8,-8)-(8,8) width 2 255,255,0@1 pen 0\n"
                "width of 'disc' size 2 255,255,0@1 in MS Sans Serif\n"
                "height of 'disc' size 2 255,255,0@1 in MS Sans Serif\n"
                "at (8,-1.75) text 'disc' size 2 255,255,0@1 in MS Sans Serif\n"
                "at (50,75) text 'box' size 2 0,0,255@1 in MS Sans Serif\n"
                "rect (50,75)-(100,150) width 2 0,0,255@1 pen 0\n"
                "layer\n"
                "layer of 50x75\n"
                "fill (0,0)-(50,50) width 0 0,0,0@128 pen 0\n"
                "fill (0,50)-(50,75) width 0 255,255,255@128 pen 0\n"
                "layer at 50,75\n");
}

} // namespace

void RunHelperHost() {
    CheckSurface();
    HostObject host([] { Write("redraw\n"); }, [](uint32_t value) { Write("hint %u\n", value); });
    Container made(&host);
    made.OnNotify([](const char* text) { Write("notify %s", text); });
    made.OnClientRect([](ViewID) { return ClientRect{0, 0, 400, 300}; });
    made.OnCapture([](bool take) { Write("capture %d\n", take); });
    Container container(static_cast<Container&&>(made));
    Expect("a container moves, the one it came from is empty", container && !made && container.Enable());

    const ShapeID shape = Add(container, "Rect", "", "", "");
    container.SendMouse(MouseCode::LeftDown, View, 10, 20);
    container.SendMouse(MouseCode::Moved, View, 110, 70);
    container.SendMouse(MouseCode::LeftUp, View, 110, 70);
    container.SendMouse(MouseCode::LeftDown, View, 50, 50);
    container.SendMouse(MouseCode::CursorQuery, View, 50, 50);
    ExpectRectangle(shape);
    Expect("the configuration is read",
           strcmp(container.Configuration(shape).c_str(), "{\"zone\":[[205,546],[2253,1911]]}\n") == 0);
    container.IgnoreNotifications();
    container.DeleteAllShapes();
    ExpectCalls("it gives the mouse back", "capture 0\n");
    CheckDrawing(container);
    container.DeleteAllShapes();
    ExpectCalls("spots give the mouse back when they end", "capture 0\ncapture 0\n");
}

} // namespace rulecanvas
