/// Where the geometry of a rule stands in its configuration.
#ifndef RULECANVAS_KIT_FIGURE_JSON_HPP
#define RULECANVAS_KIT_FIGURE_JSON_HPP

#include "json.hpp"

#include <rulecanvas_kit/rule.hpp>

namespace rulecanvas::kit {

/// An oval reads its geometry under its type, whatever it is named.
inline constexpr const char* OvalKey = "OvalShape";

/// Under the rule's name, or an oval's own key; null when neither is there.
inline const Json::Value& GeometryOf(const Rule& rule, const Json::Value& configuration) {
    const Json::Value& named = Member(configuration, rule.name);
    return named.isNull() && rule.type == OvalKey ? Member(configuration, OvalKey) : named;
}

} // namespace rulecanvas::kit

#endif
