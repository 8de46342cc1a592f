#include "rule_json.hpp"

#include "figure_json.hpp"

#include <algorithm>
#include <iterator>

namespace rulecanvas::kit {

namespace {

constexpr const char* KnownMembers[] = {"type",        "name",   "label",        "caption", "option",
                                        "colours",     "locked", "direction",    "enabled", "visible",
                                        "pointLimits", "view",   "configuration"};
constexpr int32_t FirstDirection = -1;
constexpr int32_t LastDirection = 5;

std::string TextMember(const Json::Value& rule, const char* key) {
    const Json::Value& json = rule[key];
    if (!json.isNull() && !json.isString()) {
        throw Refusal(std::string("\"") + key + "\" is not a text");
    }
    return json.isNull() ? std::string() : json.asString();
}

bool FlagMember(const Json::Value& rule, const char* key, bool usual) {
    const Json::Value& json = rule[key];
    if (!json.isNull() && !json.isBool()) {
        throw Refusal(std::string("\"") + key + "\" is neither true nor false");
    }
    return json.isNull() ? usual : json.asBool();
}

int32_t NumberMember(const Json::Value& json, const char* what, int32_t least, int32_t most) {
    const std::optional<int32_t> number = WholeNumber(json);
    if (!number || *number < least || *number > most) {
        throw Refusal(std::string(what) + " is not a whole number from " + std::to_string(least) + " to " +
                      std::to_string(most));
    }
    return *number;
}

std::optional<Colour> ColourMember(const Json::Value& colours, const char* key) {
    const Json::Value& json = Member(colours, key);
    if (json.isNull()) {
        return std::nullopt;
    }
    if (!json.isArray() || json.size() != 3) {
        throw Refusal(std::string("the colour \"") + key + "\" is not an array of three numbers");
    }
    constexpr const char* Component = "a component of a colour";
    return Colour{NumberMember(json[0], Component, 0, 255), NumberMember(json[1], Component, 0, 255),
                  NumberMember(json[2], Component, 0, 255)};
}

std::string OptionMember(const Json::Value& rule) {
    const Json::Value& json = rule["option"];
    if (json.isObject()) {
        return CompactJson(json);
    }
    if (!json.isNull() && !json.isString()) {
        throw Refusal("\"option\" is neither a word nor an object");
    }
    return json.isNull() ? std::string() : json.asString();
}

std::string ConfigurationMember(const Json::Value& rule, const Rule& known) {
    const Json::Value& json = rule["configuration"];
    if (json.isNull()) {
        return std::string();
    }
    if (!json.isObject()) {
        throw Refusal("\"configuration\" is not an object");
    }
    if (GeometryOf(known, json).isNull()) {
        throw Refusal("\"configuration\" has no member \"" + known.name + "\"");
    }
    return CompactJson(json);
}

std::optional<PointLimits> LimitsMember(const Json::Value& rule) {
    constexpr int32_t Most = 100000;
    const Json::Value& json = rule["pointLimits"];
    if (json.isNull()) {
        return std::nullopt;
    }
    return PointLimits{NumberMember(Member(json, "maximum"), "\"maximum\" of \"pointLimits\"", 0, Most),
                       NumberMember(Member(json, "minimum"), "\"minimum\" of \"pointLimits\"", 0, Most)};
}

std::string UnknownMembers(const Json::Value& rule) {
    Json::Value others = rule;
    for (const char* key : KnownMembers) {
        others.removeMember(key);
    }
    return others.empty() ? std::string() : CompactJson(others);
}

void ReadLook(const Json::Value& json, Rule& rule) {
    const Json::Value& colours = json["colours"];
    if (!colours.isNull() && !colours.isObject()) {
        throw Refusal("\"colours\" is not an object");
    }
    rule.selectedColour = ColourMember(colours, "selected");
    rule.unselectedColour = ColourMember(colours, "unselected");
    if (!json["direction"].isNull()) {
        rule.direction = NumberMember(json["direction"], "\"direction\"", FirstDirection, LastDirection);
    }
    rule.pointLimits = LimitsMember(json);
    rule.enabled = FlagMember(json, "enabled", true);
    rule.visible = FlagMember(json, "visible", true);
    rule.locked = FlagMember(json, "locked", false);
    if (!json["view"].isNull()) {
        rule.view = static_cast<uint32_t>(NumberMember(json["view"], "\"view\"", 0, INT32_MAX));
    }
}

Json::Value JsonFromColour(const Colour& colour) {
    Json::Value json(Json::arrayValue);
    json.append(colour.red);
    json.append(colour.green);
    json.append(colour.blue);
    return json;
}

void WriteTexts(const Rule& rule, Json::Value& json) {
    json["type"] = rule.type;
    json["name"] = rule.name;
    json["label"] = rule.label;
    if (!rule.caption.empty()) {
        json["caption"] = rule.caption;
    }
    if (!rule.option.empty()) {
        const Json::Value style = ParseObject(rule.option);
        json["option"] = style.empty() ? Json::Value(rule.option) : style;
    }
    json["configuration"] = rule.configuration.empty() ? Json::Value() : ParseObject(rule.configuration);
}

void WriteLook(const Rule& rule, Json::Value& json) {
    if (rule.selectedColour) {
        json["colours"]["selected"] = JsonFromColour(*rule.selectedColour);
    }
    if (rule.unselectedColour) {
        json["colours"]["unselected"] = JsonFromColour(*rule.unselectedColour);
    }
    if (rule.direction) {
        json["direction"] = *rule.direction;
    }
    if (rule.pointLimits) {
        json["pointLimits"]["maximum"] = rule.pointLimits->maximum;
        json["pointLimits"]["minimum"] = rule.pointLimits->minimum;
    }
    json["enabled"] = rule.enabled;
    json["visible"] = rule.visible;
    json["locked"] = rule.locked;
    if (rule.view != 0) {
        json["view"] = rule.view;
    }
}

} // namespace

Rule RuleFromJson(const Json::Value& json) {
    if (!json.isObject()) {
        throw Refusal("it is not an object");
    }
    Rule rule;
    rule.type = TextMember(json, "type");
    rule.name = TextMember(json, "name");
    if (rule.type.empty()) {
        throw Refusal("it has no \"type\"");
    }
    if (rule.name.empty()) {
        throw Refusal("it has no \"name\"");
    }
    rule.label = TextMember(json, "label");
    rule.caption = TextMember(json, "caption");
    rule.option = OptionMember(json);
    rule.configuration = ConfigurationMember(json, rule);
    ReadLook(json, rule);
    rule.others = UnknownMembers(json);
    return rule;
}

Json::Value JsonFromRule(const Rule& rule) {
    Json::Value json = ParseObject(rule.others);
    WriteTexts(rule, json);
    WriteLook(rule, json);
    return json;
}

} // namespace rulecanvas::kit
