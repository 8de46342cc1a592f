#include "notification.hpp"

#include "json.hpp"

namespace rulecanvas::kit {

namespace {

std::optional<RuleState> StateOf(const Json::Value& json) {
    constexpr int32_t LastState = 5;
    const std::optional<int32_t> number = WholeNumber(json);
    if (!number || *number < 0 || *number > LastState) {
        return std::nullopt;
    }
    return static_cast<RuleState>(*number);
}

} // namespace

std::optional<Notification> ParseNotification(const char* text) {
    const Json::Value root = ParseObject(text);
    const Json::Value& parameters = Member(root, "EventParam");
    const Json::Value& shape = Member(parameters, "ShapeID");
    if (!shape.isUInt()) {
        return std::nullopt;
    }
    return Notification{shape.asUInt(), StateOf(Member(parameters, "PreShapeState")),
                        StateOf(Member(parameters, "ShapeState"))};
}

} // namespace rulecanvas::kit
