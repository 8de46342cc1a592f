#pragma once

#include <cstdint>
#include <memory>

namespace rulecanvas::platform {

/// A lock that the thread holding it may take again. Waits without a limit.
class Mutex {
  public:
    Mutex();
    ~Mutex();
    Mutex(const Mutex&) = delete;
    Mutex& operator=(const Mutex&) = delete;

    /// False when the system gave no mutex; callers then go on without one.
    bool Lock();
    /// True also when there is no mutex to unlock.
    bool Unlock();

  private:
    struct State;
    std::unique_ptr<State> state;
};

class LockGuard {
  public:
    explicit LockGuard(Mutex& guarded) : mutex(guarded) { mutex.Lock(); }
    ~LockGuard() { mutex.Unlock(); }
    LockGuard(const LockGuard&) = delete;
    LockGuard& operator=(const LockGuard&) = delete;

  private:
    Mutex& mutex;
};

void Pause(int milliseconds);

/// Hands the text to an attached debugger, where the system knows such a thing.
void DebugOutput(const char* text);

/// A number that no other live object has: the address where it fits 32 bits, else the next of a count.
uint32_t IssueIdentity(const void* object);

} // namespace rulecanvas::platform
