#pragma once

#include "rulecanvas/rulecanvas.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

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

    /// The container's handle.
    ContainerHandle Insert(const ContainerPtr& container);
    /// Ends the container; nothing happens for an unknown handle.
    void Erase(ContainerHandle handle);
    /// Null when unknown: a handle, and a handler of the host, can outlive its container.
    ContainerPtr Find(ContainerHandle handle) const;
    /// One line of JSON: an array with the state of every shape, in ascending order of handle, or null without shapes.
    std::string StateReport() const;

  private:
    using Containers = std::map<ContainerHandle, ContainerPtr>;

    ContainerRegistry() = default;
    ContainerPtr Take(ContainerHandle handle);
    Containers Snapshot() const;

    /// Guards the map alone: containers are called without it.
    mutable std::mutex mutex;
    Containers containers;
};

} // namespace rulecanvas
