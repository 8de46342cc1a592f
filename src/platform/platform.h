#pragma once

#include <cstdint>

namespace rulecanvas::platform {

/// A lock that the thread holding it may take again. Waits without a limit.
class ContainerMutex {
  public:
    ContainerMutex();
    ~ContainerMutex();
    ContainerMutex(const ContainerMutex&) = delete;
    ContainerMutex& operator=(const ContainerMutex&) = delete;

    /// When the system gave no mutex, both return at once and callers go on without one.
    void Lock();
    void Unlock();

  private:
    /// Room for what the system's own lock is made of.
    alignas(void*) unsigned char native[6 * sizeof(void*)];
};

class LockGuard {
  public:
    explicit LockGuard(ContainerMutex& guarded) : mutex(guarded) { mutex.Lock(); }
    ~LockGuard() { mutex.Unlock(); }
    LockGuard(const LockGuard&) = delete;
    LockGuard& operator=(const LockGuard&) = delete;

  private:
    ContainerMutex& mutex;
};

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
