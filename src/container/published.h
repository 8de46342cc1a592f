#pragma once

#include <memory>
#include <utility>

namespace rulecanvas {

/// A value that readers take as it is at one moment, to look at in peace while others go on changing it. It is copied
/// only by the first change after a reader took it. Not guarded: whoever owns it holds a lock around each call.
template <class Value>
class Published {
  public:
    /// For a look under the owner's lock.
    const Value& Peek() const { return shared != nullptr ? *shared : own; }

    /// The value as it is now; stays as it is.
    std::shared_ptr<const Value> Take() {
        if (shared == nullptr) {
            shared = std::make_shared<const Value>(std::move(own));
            own = Value();
        }
        return shared;
    }

    /// For a change under the owner's lock.
    Value& Change() {
        if (shared != nullptr) {
            own = *shared;
            shared.reset();
        }
        return own;
    }

  private:
    Value own;
    /// What readers took; null while the value is nobody's but its owner's.
    std::shared_ptr<const Value> shared;
};

} // namespace rulecanvas
