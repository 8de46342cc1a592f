#pragma once

#include "rule.h"

namespace rulecanvas::check {

/// Gives every rule that has no reason against it yet to the library, as a host that loads the file does, and notes why
/// the library refuses one.
void CheckRules(RuleList& list);

} // namespace rulecanvas::check
