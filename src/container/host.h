#pragma once

#include "rulecanvas/rulecanvas.h"
#include "shape/delegate.h"

#include <atomic>
#include <mutex>

namespace rulecanvas {

/// The object that the host gave at creation; null is never called.
class HostCalls {
  public:
    explicit HostCalls(void* hostObject) : host(hostObject) {}

    void Forget() { host = nullptr; }
    /// `place` is that of the operation in the host's table.
    void Call(int place, uint32_t value) const {
        using Operation = void(RULECANVAS_THISCALL*)(void* host, uint32_t value);
        if (void* const live = host) {
            (*static_cast<Operation**>(live))[place](live, value);
        }
    }

  private:
    std::atomic<void*> host;
};

/// A delegate of the host that any thread may replace while others call it.
template <class Signature>
class HostDelegate;

template <class Result, class... Arguments>
class HostDelegate<Result(Arguments...)> {
  public:
    void Set(const CDelegate& words) {
        const std::lock_guard guard(mutex);
        delegate = Delegate<Result(Arguments...)>(words);
    }

    bool IsSet() const { return static_cast<bool>(Current()); }

    Result operator()(Arguments... arguments) const { return Current()(arguments...); }

  private:
    Delegate<Result(Arguments...)> Current() const {
        const std::lock_guard guard(mutex);
        return delegate;
    }

    mutable std::mutex mutex;
    Delegate<Result(Arguments...)> delegate;
};

} // namespace rulecanvas
