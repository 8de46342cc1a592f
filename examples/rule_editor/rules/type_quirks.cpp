#include "rules/type_quirks.hpp"

#include "rules/json.hpp"

namespace rule_editor {

namespace {

constexpr const char* OVAL = "OvalShape";
constexpr const char* SPOT = "SpotShape";

} // namespace

std::string configurationToPass(const Rule& rule) {
    Json::Value json;
    std::string problem;
    if (rule.type != OVAL || !parseJson(rule.configuration, json, problem)) {
        return rule.configuration;
    }
    const Json::Value geometry = member(json, rule.name.c_str());
    if (geometry.isNull()) {
        return rule.configuration;
    }
    Json::Value passed(Json::objectValue);
    passed[OVAL] = geometry;
    return Json::writeString(Json::StreamWriterBuilder(), passed);
}

bool tellsWhenComplete(const std::string& type) {
    return type != SPOT;
}

} // namespace rule_editor
