// host.hpp after the system's header with its many macros, where there is one, and with every template in use.
#if __has_include(<windows.h>)
#include <windows.h>
#endif
#if defined(_WIN32) && !defined(NOMINMAX)
// Microsoft's own header defines these in C++ as well.
#define max(a, b) (((a) > (b)) ? (a) : (b))
#define min(a, b) (((a) < (b)) ? (a) : (b))
#endif

#include <rulecanvas/host.hpp>

namespace {

class Canvas final : public rulecanvas::Surface {
  public:
    void drawString(const rulecanvas::PointF&, const rulecanvas::TextStyle&, const char*) override {}
};

} // namespace

void UseEverything();

void UseEverything() {
    rulecanvas::HostObject host([] {}, [](uint32_t) {});
    rulecanvas::Container container(&host);
    container.onNotify([](const char*) {});
    container.onClientRect([](rulecanvas::ViewID) { return rulecanvas::ClientRect{0, 0, 8, 8}; });
    container.onCapture([](bool) {});
    container.sendMouse(rulecanvas::MouseCode::moved, 1, 2.0F, 3.0F);
    container.sendKey(1, 27);
    Canvas canvas;
    container.paint(1, canvas);
    const rulecanvas::Text text = container.configuration(container.addShape({}));
    container.setTip(1, text.c_str());
}
