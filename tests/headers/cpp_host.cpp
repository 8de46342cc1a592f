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
    void DrawString(const rulecanvas::PointF&, const rulecanvas::TextStyle&, const char*) override {}
};

} // namespace

void UseEverything();

void UseEverything() {
    rulecanvas::HostObject host([] {}, [](uint32_t) {});
    rulecanvas::Container container(&host);
    container.OnNotify([](const char*) {});
    container.OnClientRect([](rulecanvas::ViewID) { return rulecanvas::ClientRect{0, 0, 8, 8}; });
    container.OnCapture([](bool) {});
    container.SendMouse(rulecanvas::MouseCode::Moved, 1, 2.0F, 3.0F);
    container.SendKey(1, 27);
    Canvas canvas;
    container.Paint(1, canvas);
    const rulecanvas::Text text = container.Configuration(container.AddShape({}));
    container.SetTip(1, text.c_str());
}
