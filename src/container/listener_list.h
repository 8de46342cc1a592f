#pragma once

#include "platform/platform.h"
#include "shape/shape_container.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <vector>

namespace rulecanvas {

/// Listeners of shapes, called in the order in which they registered.
///
/// An invocation walks the list as it stood when it began and holds no lock while it calls, so a listener may register
/// and unregister whatever it likes. One that was unregistered meanwhile, or whose shape is gone, is not called any
/// more; a shape that is being called stays in memory until the call returns.
template <class... Arguments>
class ListenerList {
  public:
    using Listener = Delegate<bool(Arguments...)>;

    void Register(const ShapeOwner& owner, const Listener& listener) {
        platform::LockGuard guard(mutex);
        Writable().push_back(std::make_shared<Entry>(owner, listener));
    }

    void Unregister(const Listener& listener) {
        platform::LockGuard guard(mutex);
        Entries& writable = Writable();
        const auto found = std::find_if(writable.begin(), writable.end(),
                                        [&](const auto& entry) { return entry->listener == listener; });
        if (found != writable.end()) {
            (*found)->registered = false;
            writable.erase(found);
        }
    }

    /// True when a listener returned true and the list stops on that.
    bool Invoke(Arguments... arguments) {
        const std::shared_ptr<const Entries> snapshot = Snapshot();
        for (const auto& entry : *snapshot) {
            const std::shared_ptr<CVideoAnalyseShape> pinned = entry->owner.lock();
            if (pinned && entry->registered && entry->listener(arguments...) && stopOnTrue) {
                return true;
            }
        }
        return false;
    }

  private:
    struct Entry {
        Entry(const ShapeOwner& entryOwner, const Listener& entryListener)
            : owner(entryOwner), listener(entryListener) {}

        const ShapeOwner owner;
        const Listener listener;
        std::atomic<bool> registered{true};
    };
    using Entries = std::vector<std::shared_ptr<Entry>>;

    std::shared_ptr<const Entries> Snapshot() {
        platform::LockGuard guard(mutex);
        return entries;
    }

    /// The list itself, or a copy of it when an invocation still walks the old one.
    Entries& Writable() {
        if (entries.use_count() > 1) {
            entries = std::make_shared<Entries>(*entries);
        }
        return *entries;
    }

    std::shared_ptr<Entries> entries = std::make_shared<Entries>();
    const bool stopOnTrue = false;
    platform::Mutex mutex;
};

} // namespace rulecanvas
