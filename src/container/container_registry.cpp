#include "container/container_registry.h"

#include "container/container.h"

namespace rulecanvas {

ContainerRegistry& ContainerRegistry::Instance() {
    static ContainerRegistry registry;
    return registry;
}

ContainerRegistry::~ContainerRegistry() {
    EndingShapes ending;
    for (const auto& [handle, container] : containers) {
        container->Abandon(ending);
    }
}

void ContainerRegistry::Insert(const ContainerPtr& container) {
    const std::lock_guard guard(mutex);
    containers.emplace(container->GetHandle(), container);
}

void ContainerRegistry::Erase(uint32_t handle) {
    const ContainerPtr container = Find(handle);
    if (container == nullptr) {
        return;
    }
    {
        const std::lock_guard guard(mutex);
        containers.erase(handle);
    }
    container->Close();
}

ContainerPtr ContainerRegistry::Find(uint32_t handle) const {
    const std::lock_guard guard(mutex);
    const auto found = containers.find(handle);
    return found == containers.end() ? nullptr : found->second;
}

std::vector<ContainerPtr> ContainerRegistry::All() const {
    const std::lock_guard guard(mutex);
    std::vector<ContainerPtr> all;
    for (const auto& [handle, container] : containers) {
        all.push_back(container);
    }
    return all;
}

} // namespace rulecanvas
