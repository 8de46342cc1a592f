#pragma once

#include "shape/types.h"

#include <cstddef>
#include <optional>

namespace rulecanvas {

/// What a shape says once a step of a gesture is committed.
enum class Effect {
    Listen,
    StopListening,
    TakeMouse,
    GiveMouse,
    TellSelection,
    TellState,
    /// Only to an owner that asked for it.
    TellCreation,
};

/// Effects in the order in which they are spoken. The arrays are constants.
class EffectList {
  public:
    constexpr EffectList() = default;
    template <size_t length>
    constexpr EffectList(const Effect (&effects)[length]) // NOLINT(google-explicit-constructor): an array is a list
        : first(effects), count(length) {}

    const Effect* begin() const { return first; }
    const Effect* end() const { return first + count; }

  private:
    const Effect* first = nullptr;
    size_t count = 0;
};

/// Where a step of a gesture leaves the shape, and what is then said. Without a state and without effects the step
/// changed at most points.
struct Outcome {
    std::optional<ShapeState> state;
    EffectList effects;
    /// What the drawing comes to is decided by a step of its own, once the effects are spoken.
    bool concludesLater = false;

    bool ChangesLife() const { return state.has_value() || effects.begin() != effects.end(); }
};

namespace effects {

inline constexpr Effect Begin[] = {Effect::Listen, Effect::TakeMouse};
inline constexpr Effect Grab[] = {Effect::TellSelection, Effect::Listen, Effect::TakeMouse};
inline constexpr Effect HoldMouse[] = {Effect::TakeMouse};
inline constexpr Effect StopListening[] = {Effect::StopListening};
inline constexpr Effect LetGo[] = {Effect::StopListening, Effect::GiveMouse};
inline constexpr Effect Tell[] = {Effect::TellState};
inline constexpr Effect Finish[] = {Effect::TellState, Effect::StopListening, Effect::GiveMouse};
inline constexpr Effect Remove[] = {Effect::StopListening, Effect::GiveMouse, Effect::TellState};

} // namespace effects
} // namespace rulecanvas
