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
    std::unique_lock guard(mutex);
    const auto erased = containers.extract(handle);
    guard.unlock();
    if (!erased.empty()) {
        erased.mapped()->Close();
    }
}

ContainerPtr ContainerRegistry::Find(ContainerHandle handle) const {
    const std::lock_guard guard(mutex);
    const auto found = containers.find(handle);
    return found == containers.end() ? nullptr : found->second;
}

std::string ContainerRegistry::StateReport() const {
    std::unique_lock guard(mutex);
    const auto reported = containers; // the shapes are asked without the lock
    guard.unlock();
    Json::Value report;
    for (const auto& [handle, container] : reported) {
        for (const ShapePtr& shape : container->ShapesInOrder()) {
            report.append(StateOf(*shape));
        }
    }
    return WriteJson(report);
}

} // namespace rulecanvas
