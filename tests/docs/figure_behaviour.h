#pragma once

#include "support/recording_surface.h"

namespace rulecanvas::test {

/// What a figure of a type shows with an option text: selected, after a drag by its middle, after one of its first
/// point, and not selected. One line, "refused", when the option keeps it from being made.
Lines BehaviourOf(const std::string& type, const std::string& option);

} // namespace rulecanvas::test
