#pragma once

#include <rulecanvas_kit/rule_set.hpp>

#include <string>

namespace rule_editor {

/// A notification for the full log: whose, what happened, and the library's text. In it the identity of the shape, which
/// differs from run to run, is replaced by the number of the rule.
std::string NewsText(const rulecanvas::kit::RuleNews& news);

} // namespace rule_editor
