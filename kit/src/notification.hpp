/// Reading the library's notifications.
#ifndef RULECANVAS_KIT_NOTIFICATION_HPP
#define RULECANVAS_KIT_NOTIFICATION_HPP

#include <rulecanvas_kit/rule_set.hpp>

#include <optional>

namespace rulecanvas::kit {

struct Notification {
    ShapeID shape = 0;
    std::optional<RuleState> before; ///< Both states are there, or none: then the shape was selected.
    std::optional<RuleState> after;
};

std::optional<Notification> ParseNotification(const char* text);

} // namespace rulecanvas::kit

#endif
