#pragma once

#include <rulecanvas/host.hpp>

#include <optional>
#include <string>

namespace rule_editor {

/* States of a shape as notifications number them. */
enum ShapeState { STATE_DELETED = 0, STATE_WAITING = 1, STATE_BEING_DRAWN = 2, STATE_COMPLETE = 3 };

/* One notification of the library. */
struct Notification {
    rulecanvas::ShapeID shape = 0;
    std::optional<int> stateBefore; /* Both states are there, or none: then the shape was selected. */
    std::optional<int> stateAfter;
};

/* Nothing when the text is no notification. */
std::optional<Notification> parseNotification(const std::string& text);

/* What happened, for a person. */
std::string describe(const Notification& notification);

/* `text` without its line feed and with the shape's identity, which differs from run to run, replaced by `mark`. */
std::string withoutIdentity(const std::string& text, const std::string& mark);

} // namespace rule_editor
