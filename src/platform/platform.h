#pragma once

#include <cstdint>
#include <mutex>

namespace rulecanvas::platform {

/// A lock that the thread holding it may take again. Waits without a limit.
class ContainerMutex {
  public:
    ContainerMutex();
    ~ContainerMutex();
    ContainerMutex(const ContainerMutex&) = delete;
    ContainerMutex& operator=(const ContainerMutex&) = delete;

    // In lower case for the standard's guards. When the system gave no mutex, both return at once and callers go on
    // without one.

    void lock();
    void unlock();

  private:
    /// Room for what the system's own lock is made of.
    alignas(void*) unsigned char native[6 * sizeof(void*)];
};

using LockGuard = std::lock_guard<ContainerMutex>;

void Pause(int milliseconds);

/// Hands the text to an attached debugger, where the system knows such a thing.
void DebugOutput(const char* text);

/// Whether the environment holds the variable with just this value.
bool HasEnvironment(const char* variable, const char* value);

/// Writes a line to where developers look: the debugger's output on Windows, the standard error elsewhere.
void WriteTrace(const char* line);

/// A number that no other live object has: the address where it fits 32 bits, else the next of a count.
uint32_t IssueIdentity(const void* object);

} // namespace rulecanvas::platform

namespace rulecanvas {
using platform::LockGuard;
}
