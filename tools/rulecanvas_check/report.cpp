#include "report.h"

#include "json_file.h"

namespace rulecanvas::check {
namespace {

std::string Joined(const std::vector<std::string>& reasons) {
    std::string all;
    for (const std::string& reason : reasons) {
        all += (all.empty() ? "" : "; ") + reason;
    }
    return all;
}

std::string Verdict(const std::vector<std::string>& reasons) {
    return reasons.empty() ? "taken\n" : "refused: " + Joined(reasons) + "\n";
}

Json::Value AsArray(const std::vector<std::string>& reasons) {
    Json::Value array(Json::arrayValue);
    for (const std::string& reason : reasons) {
        array.append(reason);
    }
    return array;
}

Json::Value AsObject(const CheckedFile& file) {
    Json::Value object;
    object["file"] = file.path;
    object["taken"] = file.list.IsTaken();
    object["reasons"] = AsArray(file.list.reasons);
    Json::Value& rules = object["rules"] = Json::Value(Json::arrayValue);
    for (const Rule& rule : file.list.rules) {
        Json::Value one;
        one["type"] = rule.type;
        one["name"] = rule.name;
        one["taken"] = rule.reasons.empty();
        one["reasons"] = AsArray(rule.reasons);
        rules.append(one);
    }
    return object;
}

} // namespace

std::string ReportAsLines(const std::vector<CheckedFile>& files) {
    std::string text;
    for (const CheckedFile& file : files) {
        const RuleList& list = file.list;
        if (!list.reasons.empty() || list.rules.empty()) {
            text += file.path + ": " + (list.reasons.empty() ? "no rules\n" : Verdict(list.reasons));
        }
        for (size_t index = 0; index < list.rules.size(); ++index) {
            const Rule& rule = list.rules[index];
            text += file.path + ": rule " + std::to_string(index + 1) + " \"" + rule.name + "\" (" + rule.type +
                    "): " + Verdict(rule.reasons);
        }
    }
    return text;
}

std::string ReportAsJson(const std::vector<CheckedFile>& files) {
    Json::Value root;
    Json::Value& array = root["files"] = Json::Value(Json::arrayValue);
    bool taken = true;
    for (const CheckedFile& file : files) {
        array.append(AsObject(file));
        taken = taken && file.list.IsTaken();
    }
    root["taken"] = taken;
    return WriteJson(root) + "\n";
}

} // namespace rulecanvas::check
