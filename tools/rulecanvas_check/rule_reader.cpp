#include "rule_reader.h"

#include "json_file.h"

namespace rulecanvas::check {
namespace {

/// An oval reads its points under this name, whatever its own.
constexpr const char* OvalMember = "OvalShape";

/// Reads the members of one element and notes for each whether it is what the format asks for.
class RuleReader {
  public:
    RuleReader(const Json::Value& givenElement, const std::string& givenPlace, Rule& givenRule)
        : element(givenElement), place(givenPlace), rule(givenRule) {}

    void Read() {
        rule.type = RequiredText("type");
        rule.name = RequiredText("name");
        rule.label = OptionalText("label").value_or("");
        rule.caption = OptionalText("caption");
        ReadOption();
        ReadConfiguration();
        ReadColours();
        if (const Json::Value* direction = Find("direction")) {
            if (Expect(IsInteger(*direction, -1, 5), "direction", "an integer from -1 to 5")) {
                rule.direction = direction->asInt();
            }
        }
        ReadPointLimits();
        ReadState();
    }

  private:
    /// Null stands for an absent member.
    const Json::Value* Find(const char* key) const {
        const Json::Value* const found = element.find(key, key + std::char_traits<char>::length(key));
        return found == nullptr || found->isNull() ? nullptr : found;
    }

    bool Expect(bool met, const std::string& key, const std::string& what) {
        if (!met) {
            rule.reasons.push_back("expected " + what + ", at " + place + "." + key);
        }
        return met;
    }

    std::optional<std::string> OptionalText(const char* key) {
        const Json::Value* const value = Find(key);
        if (value == nullptr || !Expect(value->isString(), key, "a string")) {
            return std::nullopt;
        }
        return value->asString();
    }

    std::string RequiredText(const char* key) {
        const Json::Value* const value = Find(key);
        const bool text = value != nullptr && value->isString() && !value->asString().empty();
        return Expect(text, key, "a string that is not empty") ? value->asString() : std::string();
    }

    void ReadOption() {
        if (const Json::Value* option = Find("option")) {
            if (Expect(option->isString() || option->isObject(), "option", "a mode word or an object")) {
                rule.option = option->isString() ? option->asString() : WriteJson(*option);
            }
        }
    }

    void ReadConfiguration() {
        const Json::Value* const found = Find("configuration");
        if (found == nullptr || !Expect(found->isObject(), "configuration", "an object")) {
            return;
        }
        Json::Value configuration = *found;
        if (rule.type == OvalMember && configuration.isMember(rule.name)) {
            const Json::Value points = configuration[rule.name];
            configuration.removeMember(rule.name);
            configuration[OvalMember] = points;
        }
        rule.configuration = WriteJson(configuration);
    }

    void ReadColours() {
        if (const Json::Value* colours = Find("colours")) {
            if (Expect(colours->isObject(), "colours", "an object")) {
                rule.selected = ReadColour((*colours)["selected"], "colours.selected");
                rule.unselected = ReadColour((*colours)["unselected"], "colours.unselected");
            }
        }
    }

    std::optional<Colour> ReadColour(const Json::Value& value, const char* key) {
        if (value.isNull()) {
            return std::nullopt;
        }
        bool colour = value.isArray() && value.size() == 3;
        for (Json::ArrayIndex index = 0; colour && index < 3; ++index) {
            colour = IsInteger(value[index], 0, 255);
        }
        if (!Expect(colour, key, "an array of 3 integers from 0 to 255")) {
            return std::nullopt;
        }
        return Colour{value[0].asInt(), value[1].asInt(), value[2].asInt()};
    }

    void ReadPointLimits() {
        const Json::Value* const limits = Find("pointLimits");
        if (limits == nullptr || !Expect(limits->isObject(), "pointLimits", "an object")) {
            return;
        }
        const Json::Value& maximum = (*limits)["maximum"];
        const Json::Value& minimum = (*limits)["minimum"];
        const bool both = IsInteger(maximum, 0, INT32_MAX) && IsInteger(minimum, 0, INT32_MAX);
        if (Expect(both, "pointLimits", "\"maximum\" and \"minimum\" as integers")) {
            rule.pointLimits = PointLimits{maximum.asInt(), minimum.asInt()};
        }
    }

    void ReadState() {
        for (const char* key : {"enabled", "visible", "locked"}) {
            const Json::Value* const value = Find(key);
            Expect(value == nullptr || value->isBool(), key, "true or false");
        }
        if (const Json::Value* view = Find("view")) {
            if (Expect(IsInteger(*view, 0, INT32_MAX), "view", "an integer from 0 up")) {
                rule.view = view->asUInt();
            }
        }
    }

    const Json::Value& element;
    const std::string& place;
    Rule& rule;
};

} // namespace

bool IsInteger(const Json::Value& value, int32_t smallest, int32_t largest) {
    return value.type() == Json::intValue && value >= smallest && value <= largest;
}

Rule ReadRule(const Json::Value& element, const std::string& place) {
    Rule rule;
    if (element.isObject()) {
        RuleReader(element, place, rule).Read();
    } else {
        rule.reasons.push_back("expected an object, at " + place);
    }
    return rule;
}

} // namespace rulecanvas::check
