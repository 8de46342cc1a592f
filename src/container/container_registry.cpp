#include "container/container_registry.h"

#include "container/container.h"
#include "shape/json_text.h"
#include "shape/notifications.h"

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

ContainerHandle ContainerRegistry::Insert(const ContainerPtr& container) {
    const std::lock_guard guard(mutex);
    containers.emplace(container->GetHandle(), container);
    return container->GetHandle();
}

void ContainerRegistry::Erase(ContainerHandle handle) {
    if (const ContainerPtr erased = Take(handle)) {
        erased->Close();
    }
}

ContainerPtr ContainerRegistry::Take(ContainerHandle handle) {
    const std::lock_guard guard(mutex);
    const auto taken = containers.extract(handle);
    return taken.empty() ? nullptr : taken.mapped();
}

ContainerPtr ContainerRegistry::Find(ContainerHandle handle) const {
    const std::lock_guard guard(mutex);
    const auto found = containers.find(handle);
    return found == containers.end() ? nullptr : found->second;
}

ContainerRegistry::Containers ContainerRegistry::Snapshot() const {
    const std::lock_guard guard(mutex);
    return containers;
}

std::string ContainerRegistry::StateReport() const {
    Json::Value report;
    for (const auto& [handle, container] : Snapshot()) {
        for (const ShapePtr& shape : container->ShapesInOrder()) {
            report.append(StateOf(*shape));
        }
    }
    return WriteJson(report);
}

} // namespace rulecanvas
