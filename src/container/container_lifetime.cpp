#include "container/container.h"

#include <set>

namespace rulecanvas {

/// The containers that a host's handler may still name by address. A handler can outlive its container; it must then do
/// nothing.
class LiveContainers {
  public:
    /// Shared with every container, because the order in which an unloading library destroys its objects is not ours.
    static const std::shared_ptr<LiveContainers>& Instance() {
        static const std::shared_ptr<LiveContainers> instance = std::make_shared<LiveContainers>();
        return instance;
    }

    void Add(CVideoAnalyseContainer* container) {
        const std::lock_guard<std::mutex> guard(mutex);
        live.insert(container);
    }

    void Remove(CVideoAnalyseContainer* container) {
        const std::lock_guard<std::mutex> guard(mutex);
        live.erase(container);
    }

    /// Keeps the container in memory; null when it is not alive.
    std::shared_ptr<CVideoAnalyseContainer> Pin(void* address) {
        const std::lock_guard<std::mutex> guard(mutex);
        const auto found = live.find(static_cast<CVideoAnalyseContainer*>(address));
        return found == live.end() ? nullptr : (*found)->shared_from_this();
    }

  private:
    std::mutex mutex;
    std::set<CVideoAnalyseContainer*> live;
};

namespace {

/// Runs an operation of a live container on behalf of the host, to whom no exception may escape.
template <class Operation>
void RunForHost(void* address, Operation operation) {
    try {
        if (const std::shared_ptr<CVideoAnalyseContainer> container = LiveContainers::Instance()->Pin(address)) {
            operation(*container);
        }
    } catch (...) {
        // out of memory: the rest of the event is lost
    }
}

} // namespace

std::shared_ptr<CVideoAnalyseContainer> CVideoAnalyseContainer::Create(void* hostObject) {
    auto container = std::make_shared<CVideoAnalyseContainer>(hostObject);
    container->liveContainers->Add(container.get());
    return container;
}

CVideoAnalyseContainer::CVideoAnalyseContainer(void* hostObject)
    : handle(platform::IssueIdentity(this)), liveContainers(LiveContainers::Instance()),
      drawHandler(this, &DrawOperation), mouseHandler(this, &MouseOperation), host(hostObject) {}

CVideoAnalyseContainer::~CVideoAnalyseContainer() {
    liveContainers->Remove(this);
}

void CVideoAnalyseContainer::Close() {
    closed = true;
    liveContainers->Remove(this);
    DeleteAllShapes();
    ForgetHost();
}

void CVideoAnalyseContainer::Abandon(EndingShapes& ending) {
    ForgetHost(); // which may be gone, or in the middle of unloading
    liveContainers->Remove(this);
    EndShapes(ending);
}

void CVideoAnalyseContainer::ForgetHost() {
    closed = true;
    const CDelegate none{nullptr, nullptr};
    notifyDelegate.Set(none);
    adjustPointDelegate.Set(none);
    clientRectDelegate.Set(none);
    captureDelegate.Set(none);
    translateDelegate.Set(none);
}

uintptr_t RULECANVAS_THISCALL CVideoAnalyseContainer::MouseOperation(void* container, uintptr_t /*ignored*/,
                                                                     uintptr_t event) {
    if (const auto* record = reinterpret_cast<const ContainerMouseEvent*>(event)) {
        RunForHost(container, [&](CVideoAnalyseContainer& live) { live.OnMouseEvent(*record); });
    }
    return 0;
}

uintptr_t RULECANVAS_THISCALL CVideoAnalyseContainer::DrawOperation(void* container, uintptr_t view,
                                                                    uintptr_t surface) {
    if (auto* graphics = reinterpret_cast<IContainerGraphics*>(surface)) {
        RunForHost(container, [&](CVideoAnalyseContainer& live) { live.OnDraw(static_cast<ViewID>(view), *graphics); });
    }
    return 0;
}

} // namespace rulecanvas
