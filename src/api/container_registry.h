#pragma once

#include "container/container.h"

#include <map>
#include <memory>
#include <vector>

namespace rulecanvas {

/// The live containers by handle. It has no lock: containers are made and released while no other call runs. Those
/// still there when the library is unloaded end with it.
class ContainerRegistry {
  public:
    ContainerRegistry() = default;
    ~ContainerRegistry();
    ContainerRegistry(const ContainerRegistry&) = delete;
    ContainerRegistry& operator=(const ContainerRegistry&) = delete;

    ContainerHandle Insert(std::shared_ptr<CVideoAnalyseContainer> container);
    /// Null when unknown. A caller keeps the container in memory for as long as it holds the result.
    std::shared_ptr<CVideoAnalyseContainer> Find(ContainerHandle handle) const;
    void Erase(ContainerHandle handle);
    /// In ascending order of handle.
    std::vector<std::shared_ptr<CVideoAnalyseContainer>> All() const;

  private:
    std::map<ContainerHandle, std::shared_ptr<CVideoAnalyseContainer>> containers;
};

} // namespace rulecanvas
