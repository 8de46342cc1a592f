#pragma once

#include "rulecanvas/rulecanvas.h"
#include "shape/delegate.h"

#include <mutex>

namespace rulecanvas {

/// The object that the host gave at creation; null is never called.
class HostCalls {
  public:
    explicit HostCalls(void* hostObject) : host(hostObject) {}

    void SetInteractionHint(uint32_t value) const { Call(RULECANVAS_HOST_SET_INTERACTION_HINT, value); }
    void RequestRedraw(uint32_t value) const { Call(RULECANVAS_HOST_REQUEST_REDRAW, value); }

  private:
    using Operation = void(RULECANVAS_THISCALL*)(void* host, uint32_t value);

    void Call(int place, uint32_t value) const {
        if (host != nullptr) {
            (*static_cast<Operation**>(host))[place](host, value);
        }
    }

    void* host;
};

/// A delegate of the host that any thread may replace while others call it.
template <class Signature>
class HostDelegate;

template <class Result, class... Arguments>
class HostDelegate<Result(Arguments...)> {
  public:
    void Set(const CDelegate& words) {
        const std::lock_guard<std::mutex> guard(mutex);
        delegate = Delegate<Result(Arguments...)>(words);
    }

    bool IsSet() const { return static_cast<bool>(Current()); }

    Result operator()(Arguments... arguments) const { return Current()(arguments...); }

  private:
    Delegate<Result(Arguments...)> Current() const {
        const std::lock_guard<std::mutex> guard(mutex);
        return delegate;
    }

    mutable std::mutex mutex;
    Delegate<Result(Arguments...)> delegate;
};

} // namespace rulecanvas
