#include "container/container_registry.h"

#include "container/container.h"

namespace rulecanvas {
namespace {

using Guard = std::lock_guard<std::mutex>;

template <class Map, class Key>
ContainerPtr FindIn(const Map& map, const Key& key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

} // namespace

ContainerRegistry& ContainerRegistry::Instance() {
    static ContainerRegistry registry;
    return registry;
}

ContainerRegistry::~ContainerRegistry() {
    EndingShapes ending;
    for (const auto& [handle, container] : byHandle) {
        container->Abandon(ending);
    }
}

void ContainerRegistry::Insert(const ContainerPtr& container) {
    const Guard guard(mutex);
    byAddress.emplace(container.get(), container);
    try {
        byHandle.emplace(container->GetHandle(), container);
    } catch (...) {
        byAddress.erase(container.get());
        throw;
    }
}

void ContainerRegistry::Erase(uint32_t handle) {
    const ContainerPtr container = Find(handle);
    if (container == nullptr) {
        return;
    }
    {
        const Guard guard(mutex);
        byHandle.erase(handle);
        byAddress.erase(container.get());
    }
    container->Close();
}

ContainerPtr ContainerRegistry::Find(uint32_t handle) const {
    const Guard guard(mutex);
    return FindIn(byHandle, handle);
}

ContainerPtr ContainerRegistry::FindByAddress(const void* address) const {
    const Guard guard(mutex);
    return FindIn(byAddress, address);
}

std::vector<ContainerPtr> ContainerRegistry::All() const {
    const Guard guard(mutex);
    std::vector<ContainerPtr> all;
    for (const auto& [handle, container] : byHandle) {
        all.push_back(container);
    }
    return all;
}

} // namespace rulecanvas
