#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace rulecanvas {

class CVideoAnalyseContainer;
using ContainerPtr = std::shared_ptr<CVideoAnalyseContainer>;

/// The live containers. Those still there when the library is unloaded end with it.
///
/// Whoever holds a container that was found here keeps it in memory, also when the host releases it meanwhile.
class ContainerRegistry {
  public:
    static ContainerRegistry& Instance();

    ~ContainerRegistry();
    ContainerRegistry(const ContainerRegistry&) = delete;
    ContainerRegistry& operator=(const ContainerRegistry&) = delete;

    void Insert(const ContainerPtr& container);
    /// Ends the container; nothing happens for an unknown handle.
    void Erase(uint32_t handle);
    /// Null when unknown: a handle, and a handler of the host, can outlive its container.
    ContainerPtr Find(uint32_t handle) const;
    /// In ascending order of handle.
    std::vector<ContainerPtr> All() const;

  private:
    ContainerRegistry() = default;

    mutable std::mutex mutex;
    std::map<uint32_t, ContainerPtr> containers;
};

} // namespace rulecanvas
