#include "page_host.hpp"

#include "page.hpp"

#include "container/container.h"
#include "container/container_registry.h"

namespace rulecanvas_web {

PageHost::PageHost(uint32_t number)
    : page(number),
      object([number] { PageRequestRedraw(number); }, [number](uint32_t value) { PageHint(number, value); }),
      container(&object), measures(number), surface(measures) {
    Listen(true);
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

const uint32_t* PageHost::Selection() {
    selection.assign(1, 0);
    for (const auto& shape : rulecanvas::ContainerRegistry::Instance().Find(container.Handle())->ShapesInOrder()) {
        if (shape->IsSelected()) {
            selection.push_back(shape->GetShapeId());
            ++selection[0];
        }
    }
    return selection.data();
}

void PageHost::Listen(bool listens) {
    if (!listens) {
        container.IgnoreNotifications();
        return;
    }
    const rulecanvas::CDelegate delegate = {this, reinterpret_cast<void*>(&Notified)};
    rulecanvas::SetContainerNotifyEventDelegate(container.Handle(), &delegate);
}

void PageHost::Notified(RULECANVAS_SELF, const char* text, rulecanvas::Bool32) noexcept {
    PageNotify(static_cast<PageHost*>(self)->page, text);
}

} // namespace rulecanvas_web
