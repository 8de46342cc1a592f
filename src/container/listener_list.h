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
        entries.push_back(std::make_shared<Entry>(owner, listener));
        snapshot.reset();
    }

    void Unregister(const Listener& listener) {
        platform::LockGuard guard(mutex);
        const auto found = std::find_if(entries.begin(), entries.end(),
                                        [&](const auto& entry) { return entry->listener == listener; });
        if (found != entries.end()) {
            (*found)->registered = false;
            entries.erase(found);
            snapshot.reset();
        }
    }

    void Invoke(Arguments... arguments) {
        const std::shared_ptr<const Entries> current = Snapshot();
        for (const auto& entry : *current) {
            const std::shared_ptr<CVideoAnalyseShape> pinned = entry->owner.lock();
            if (pinned && entry->registered) {
                entry->listener(arguments...);
            }
        }
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
        if (snapshot == nullptr) {
            snapshot = std::make_shared<const Entries>(entries);
        }
        return snapshot;
    }

    Entries entries;
    std::shared_ptr<const Entries> snapshot; // null after a change
    platform::Mutex mutex;
};

} // namespace rulecanvas
