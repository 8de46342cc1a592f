#include "page_host.hpp"

#include "page.hpp"

namespace rulecanvas_web {

PageHost::PageHost(uint32_t number)
    : object([number] { PageRequestRedraw(number); }, [number](uint32_t value) { PageHint(number, value); }),
      container(&object), measures(number), surface(measures) {
    container.OnNotify([number](const char* text) { PageNotify(number, text); });
    container.OnClientRect([this](rulecanvas::ViewID) { return area; });
    container.OnCapture([number](bool take) { PageCapture(number, take); });
    container.Enable();
}

bool PageHost::Paint(rulecanvas::ViewID view) {
    surface.Begin();
    container.Paint(view, surface);
    return surface.End();
}

const char* PageHost::Configuration(rulecanvas::ShapeID shape) {
    configuration = container.Configuration(shape);
    return configuration.c_str();
}

} // namespace rulecanvas_web
