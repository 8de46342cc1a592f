/// Undo and redo: the states that a set of rules went through.
#ifndef RULECANVAS_KIT_HISTORY_HPP
#define RULECANVAS_KIT_HISTORY_HPP

#include <rulecanvas_kit/rule.hpp>

#include <cstddef>
#include <deque>
#include <vector>

namespace rulecanvas::kit {

/// Keeps states by their configurations, as they were written then: the library rounds to whole pixels, so a geometry that
/// is read back from a container is not always the text that it was made from. One thread at a time.
class History {
  public:
    using State = std::vector<Rule>;

    /// Begins with a state that counts as saved.
    explicit History(State first = {});

    /// What follows a change. Forgets what was undone. The same state as the current one is no change.
    void Record(State state);

    bool CanUndo() const { return current > 0; }
    bool CanRedo() const { return current + 1 < states.size(); }
    /// The state that holds after the step; the current one when there is no step.
    const State& Undo();
    const State& Redo();
    const State& Current() const { return states[current]; }

    void MarkSaved() { saved = Current(); }
    bool HasUnsavedChanges() const { return saved != Current(); }

    /// Older states are forgotten.
    static constexpr size_t Longest = 500;

  private:
    std::deque<State> states;
    size_t current = 0;
    State saved;
};

} // namespace rulecanvas::kit

#endif
