#include "rules_file.h"

#include "json_file.h"
#include "rule_reader.h"

#include <set>

namespace rulecanvas::check {
namespace {

constexpr const char* Format = "rulecanvas-rules";
constexpr int NewestVersion = 1;

std::string WhyNoRulesFile(const Json::Value& root) {
    if (!root.isObject() || root["format"] != Format) {
        return std::string("not a rules file: expected \"format\":\"") + Format +
               "\" (for a single configuration give --type)";
    }
    const Json::Value& version = root["version"];
    if (version.type() != Json::intValue || version < 1) {
        return "expected a positive integer, at $.version";
    }
    if (version > NewestVersion) {
        return "version " + WriteJson(version) + " is newer than " + std::to_string(NewestVersion) +
               ", the newest that is known, at $.version";
    }
    return root["rules"].isArray() ? std::string() : "expected an array, at $.rules";
}

void ReadPicture(const Json::Value& root, RuleList& list) {
    const Json::Value& picture = root["picture"];
    if (picture.isNull()) {
        return;
    }
    const bool sized =
        picture.isObject() && IsInteger(picture["width"], 1, INT32_MAX) && IsInteger(picture["height"], 1, INT32_MAX);
    if (sized) {
        list.picture = {picture["width"].asInt(), picture["height"].asInt()};
    } else {
        list.reasons.emplace_back("expected \"width\" and \"height\" as positive integers, at $.picture");
    }
}

} // namespace

RuleList ReadRulesFile(const std::string& text) {
    RuleList list;
    Json::Value root;
    std::string reason = ParseJson(text, root);
    if (reason.empty()) {
        reason = WhyNoRulesFile(root);
    }
    if (!reason.empty()) {
        list.reasons.push_back(reason);
        return list;
    }
    ReadPicture(root, list);
    std::set<std::string> names;
    const Json::Value& rules = root["rules"];
    for (Json::ArrayIndex index = 0; index < rules.size(); ++index) {
        Rule rule = ReadRule(rules[index], "$.rules[" + std::to_string(index) + "]");
        if (!rule.name.empty() && !names.insert(rule.name).second) {
            rule.reasons.emplace_back("another rule of the file has this name");
        }
        list.rules.push_back(std::move(rule));
    }
    return list;
}

RuleList ReadConfiguration(const std::string& text, const std::string& type, const std::string& option) {
    RuleList list;
    Json::Value root;
    const std::string reason = ParseJson(text, root);
    if (!reason.empty() || !root.isObject()) {
        list.reasons.push_back(reason.empty() ? "expected an object, at $" : reason);
        return list;
    }
    Rule rule;
    rule.type = type;
    rule.option = option;
    rule.configuration = WriteJson(root);
    for (const std::string& member : root.getMemberNames()) {
        if (rule.name.empty() && root[member].isArray()) {
            rule.name = member;
        }
    }
    list.rules.push_back(std::move(rule));
    return list;
}

} // namespace rulecanvas::check
