#include <rulecanvas_kit/history.hpp>

#include <utility>

namespace rulecanvas::kit {

History::History(State first) : states{first}, saved(std::move(first)) {}

void History::Record(State state) {
    if (state == Current()) {
        return;
    }
    states.resize(current + 1);
    states.push_back(std::move(state));
    if (states.size() > Longest) {
        states.pop_front();
    }
    current = states.size() - 1;
}

const History::State& History::Undo() {
    current -= CanUndo() ? 1U : 0U;
    return Current();
}

const History::State& History::Redo() {
    current += CanRedo() ? 1U : 0U;
    return Current();
}

} // namespace rulecanvas::kit
