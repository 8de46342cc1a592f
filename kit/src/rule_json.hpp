/// One rule as a member of "rules".
#ifndef RULECANVAS_KIT_RULE_JSON_HPP
#define RULECANVAS_KIT_RULE_JSON_HPP

#include "json.hpp"

#include <rulecanvas_kit/rule.hpp>

#include <stdexcept>

namespace rulecanvas::kit {

/// Why a rule is refused. Stays inside the kit.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Throws Refusal.
Rule RuleFromJson(const Json::Value& json);
Json::Value JsonFromRule(const Rule& rule);

} // namespace rulecanvas::kit

#endif
