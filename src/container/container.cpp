#include "container/container.h"

#include "container/container_registry.h"
#include "platform/trace.h"

namespace rulecanvas {
namespace {

/// Runs an operation of a live container on behalf of the host, to whom no exception may escape.
template <class Operation>
void RunForHost(void* target, Operation operation) {
    try {
        const auto handle = static_cast<ContainerHandle>(reinterpret_cast<uintptr_t>(target));
        if (const ContainerPtr container = ContainerRegistry::Instance().Find(handle)) {
            operation(*container);
        }
    } catch (...) { // the rest of the event is lost
    }
}

uintptr_t RULECANVAS_THISCALL MouseOperation(void* target, uintptr_t /*ignored*/, uintptr_t event) {
    if (const auto* record = reinterpret_cast<const ContainerMouseEvent*>(event)) {
        RunForHost(target, [&](CVideoAnalyseContainer& live) { live.OnMouseEvent(*record); });
    }
    return 0;
}

uintptr_t RULECANVAS_THISCALL DrawOperation(void* target, uintptr_t view, uintptr_t surface) {
    if (auto* graphics = reinterpret_cast<IContainerGraphics*>(surface)) {
        RunForHost(target, [&](CVideoAnalyseContainer& live) { live.OnDraw(static_cast<ViewID>(view), *graphics); });
    }
    return 0;
}

} // namespace

CVideoAnalyseContainer::CVideoAnalyseContainer(void* hostObject)
    : handle(platform::IssueIdentity(this)), drawHandler(handle, &DrawOperation), mouseHandler(handle, &MouseOperation),
      host(hostObject) {}

CVideoAnalyseContainer::~CVideoAnalyseContainer() {
    delete spareLook.load();
}

void CVideoAnalyseContainer::Close() {
    BeginEnd();
    DeleteAllShapes();
    ForgetDelegates();
}

void CVideoAnalyseContainer::ForgetDelegates() {
    const CDelegate none{nullptr, nullptr};
    notifyDelegate.Set(none);
    adjustPointDelegate.Set(none);
    clientRectDelegate.Set(none);
    captureDelegate.Set(none);
    translateDelegate.Set(none);
}

void CVideoAnalyseContainer::unRegisterWinMouseEvent(MouseListenerKind kind, CVideoAnalyseShape& listener) {
    if (kind == MouseListenerKind::MouseMoved) {
        DebugTrace("unRegisterWinMouseEvent:MOUSE_MOVED_EVENT\n");
    }
    ListenersOf(kind).Unregister(listener);
}

} // namespace rulecanvas
