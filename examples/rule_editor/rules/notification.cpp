#include "rules/notification.hpp"

#include "rules/json.hpp"

#include <algorithm>
#include <iterator>

namespace rule_editor {

namespace {

constexpr const char* STATE_NAMES[] = {"deleted", "waiting", "being drawn", "complete", "being moved", "point dragged"};

std::string stateName(int state) {
    const bool known = state >= 0 && state < static_cast<int>(std::size(STATE_NAMES));
    return known ? STATE_NAMES[state] : "state " + std::to_string(state);
}

std::optional<int> number(const Json::Value& json) {
    return json.type() == Json::intValue && json.isInt() ? std::optional<int>(json.asInt()) : std::nullopt;
}

} // namespace

std::optional<Notification> parseNotification(const std::string& text) {
    Json::Value root;
    std::string problem;
    if (!parseJson(text, root, problem)) {
        return std::nullopt;
    }
    const Json::Value parameters = member(root, "EventParam");
    const Json::Value shape = member(parameters, "ShapeID");
    if (!shape.isUInt()) {
        return std::nullopt;
    }
    return Notification{shape.asUInt(), number(parameters["PreShapeState"]), number(parameters["ShapeState"])};
}

std::string describe(const Notification& notification) {
    if (!notification.stateBefore || !notification.stateAfter) {
        return "selected";
    }
    return stateName(*notification.stateBefore) + " -> " + stateName(*notification.stateAfter);
}

std::string withoutIdentity(const std::string& text, const std::string& mark) {
    static const std::string KEY = "\"ShapeID\":";
    std::string result = text.substr(0, text.find_last_not_of("\r\n") + 1);
    const size_t key = result.rfind(KEY);
    if (key == std::string::npos) {
        return result;
    }
    const size_t begin = key + KEY.size();
    const size_t end = std::min(result.find_first_of(",}", begin), result.size());
    return result.replace(begin, end - begin, mark);
}

} // namespace rule_editor
