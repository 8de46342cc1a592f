#include "api/container_registry.h"

namespace rulecanvas {

ContainerRegistry::~ContainerRegistry() {
    EndingShapes ending;
    for (const auto& [handle, container] : containers) {
        container->Abandon(ending);
    }
}

ContainerHandle ContainerRegistry::Insert(std::shared_ptr<CVideoAnalyseContainer> container) {
    const ContainerHandle handle = container->GetHandle();
    containers[handle] = std::move(container);
    return handle;
}

std::shared_ptr<CVideoAnalyseContainer> ContainerRegistry::Find(ContainerHandle handle) const {
    const auto found = containers.find(handle);
    return found == containers.end() ? nullptr : found->second;
}

void ContainerRegistry::Erase(ContainerHandle handle) {
    if (const std::shared_ptr<CVideoAnalyseContainer> container = Find(handle)) {
        containers.erase(handle);
        container->Close();
    }
}

std::vector<std::shared_ptr<CVideoAnalyseContainer>> ContainerRegistry::All() const {
    std::vector<std::shared_ptr<CVideoAnalyseContainer>> all;
    for (const auto& [handle, container] : containers) {
        all.push_back(container);
    }
    return all;
}

} // namespace rulecanvas
