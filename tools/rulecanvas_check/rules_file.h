#pragma once

#include "rule.h"

namespace rulecanvas::check {

/// Reads the text of a rules file; what it breaks of the format's rules is noted as reasons.
RuleList ReadRulesFile(const std::string& text);

/// Takes a text as one configuration of a shape of the given type. The shape is named as the first member that holds an
/// array, as in the texts that the library writes.
RuleList ReadConfiguration(const std::string& text, const std::string& type, const std::string& option);

} // namespace rulecanvas::check
