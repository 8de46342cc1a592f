// The smallest complete host: one view, one rectangle that the "user" drags out, a surface that prints what it is told.
#include <rulecanvas/host.hpp>

#include <cstdio>

using rulecanvas::ClientRect;
using rulecanvas::ColorF;
using rulecanvas::MouseCode;
using rulecanvas::PointF;

namespace {

class PrintingSurface final : public rulecanvas::Surface {
  public:
    void StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width, const ColorF&,
                         int32_t) override {
        std::printf("rectangle (%g, %g) to (%g, %g), width %g\n", static_cast<double>(topLeft.x),
                    static_cast<double>(topLeft.y), static_cast<double>(bottomRight.x),
                    static_cast<double>(bottomRight.y), static_cast<double>(width));
    }
};

} // namespace

int main() {
    constexpr rulecanvas::ViewID View = 0;

    // The host object and everything that the callbacks use outlive the container.
    rulecanvas::HostObject host([] { std::puts("repaint, please"); });
    rulecanvas::Container container(&host);
    if (!container) {
        return 1;
    }

    container.OnClientRect([](rulecanvas::ViewID) { return ClientRect{0, 0, 640, 480}; });
    container.OnCapture([](bool take) { std::puts(take ? "take the mouse" : "let the mouse go"); });
    container.OnNotify([](const char* text) { std::printf("event %s", text); });
    container.Enable();

    rulecanvas::ShapeSettings settings;
    settings.view = View;
    settings.type = "Rect";
    settings.label = "intrusion";
    settings.name = "gate";
    const rulecanvas::ShapeID shape = container.AddShape(settings);
    if (shape == 0) {
        return 1;
    }

    // A window procedure forwards these as they come.
    container.SendMouse(MouseCode::LeftDown, View, 100, 80);
    container.SendMouse(MouseCode::Moved, View, 300, 200);
    container.SendMouse(MouseCode::LeftUp, View, 300, 200);

    // Last in the paint of the view, on top of the picture.
    PrintingSurface surface;
    container.Paint(View, surface);

    // What a host stores; AddShape takes it back as `configuration`.
    std::printf("geometry %s", container.Configuration(shape).c_str());
    return 0;
}
