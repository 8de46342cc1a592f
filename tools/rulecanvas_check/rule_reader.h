#pragma once

#include "rule.h"

#include <json/value.h>

namespace rulecanvas::check {

bool IsInteger(const Json::Value& value, int32_t smallest, int32_t largest);

/// Reads one element of "rules", which stands at `place` in the file; its mistakes become reasons of the rule.
Rule ReadRule(const Json::Value& element, const std::string& place);

} // namespace rulecanvas::check
