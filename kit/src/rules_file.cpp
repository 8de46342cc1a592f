#include <rulecanvas_kit/rules_file.hpp>

#include "rule_json.hpp"

#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <system_error>

namespace rulecanvas::kit {

namespace {

constexpr const char* Format = "rulecanvas-rules";
constexpr int32_t Version = 1;

/// Refuses what is no file of this format and version.
void CheckHead(const Json::Value& root) {
    const Json::Value& format = Member(root, "format");
    if (!format.isString() || format.asString() != Format) {
        throw Refusal(std::string("it is no rules file: its \"format\" is not \"") + Format + "\"");
    }
    const std::optional<int32_t> version = WholeNumber(Member(root, "version"));
    if (!version || *version < 1) {
        throw Refusal("its \"version\" is not a whole number from 1 up");
    }
    if (*version > Version) {
        throw Refusal("it was written by a newer program: its version is " + std::to_string(*version) +
                      ", known are versions up to " + std::to_string(Version));
    }
    if (!root["rules"].isArray()) {
        throw Refusal("it has no array \"rules\"");
    }
}

std::optional<Size> ReadPicture(const Json::Value& root) {
    const std::optional<int32_t> width = WholeNumber(Member(root["picture"], "width"));
    const std::optional<int32_t> height = WholeNumber(Member(root["picture"], "height"));
    return width && height ? std::optional<Size>(Size{*width, *height}) : std::nullopt;
}

std::string Title(const Json::Value& rule, Json::ArrayIndex index) {
    const Json::Value& name = Member(rule, "name");
    const std::string number = "rule " + std::to_string(index + 1);
    return name.isString() ? number + " \"" + name.asString() + "\"" : number;
}

std::vector<Rule> ReadRules(const Json::Value& list) {
    std::vector<Rule> rules;
    std::set<std::string> names;
    std::string refused;
    for (Json::ArrayIndex i = 0; i < list.size(); ++i) {
        try {
            rules.push_back(RuleFromJson(list[i]));
            if (!names.insert(rules.back().name).second) {
                throw Refusal("another rule has this name");
            }
        } catch (const Refusal& refusal) {
            refused += "\n" + Title(list[i], i) + ": " + refusal.what();
        }
    }
    if (!refused.empty()) {
        throw Refusal("it holds rules that are refused:" + refused);
    }
    return rules;
}

std::string UnknownMembers(Json::Value root) {
    for (const char* key : {"format", "version", "rules"}) {
        root.removeMember(key);
    }
    if (ReadPicture(root)) {
        root.removeMember("picture");
    }
    return root.empty() ? std::string() : CompactJson(root);
}

} // namespace

std::optional<RulesFile> ParseRules(const std::string& text, std::string& problem) {
    const std::optional<Json::Value> root = ParseJson(text, problem);
    if (!root) {
        problem = "it is no JSON: " + problem;
        return std::nullopt;
    }
    try {
        CheckHead(*root);
        return RulesFile{ReadPicture(*root), ReadRules((*root)["rules"]), UnknownMembers(*root)};
    } catch (const Refusal& refusal) {
        problem = refusal.what();
        return std::nullopt;
    }
}

std::string FormatRules(const RulesFile& file) {
    Json::Value root = ParseObject(file.others);
    root["format"] = Format;
    root["version"] = Version;
    if (file.picture) {
        root["picture"]["width"] = file.picture->width;
        root["picture"]["height"] = file.picture->height;
    }
    Json::Value& list = root["rules"] = Json::Value(Json::arrayValue);
    for (const Rule& rule : file.rules) {
        list.append(JsonFromRule(rule));
    }
    return IndentedJson(root) + "\n";
}

std::optional<RulesFile> ReadRulesFile(const std::filesystem::path& path, std::string& problem) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        problem = "it cannot be opened";
        return std::nullopt;
    }
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    return ParseRules(text, problem);
}

bool WriteRulesFile(const std::filesystem::path& path, const RulesFile& file, std::string& problem) {
    std::filesystem::path fresh = path;
    fresh += ".new";
    std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
    out << FormatRules(file);
    out.close();
    std::error_code error;
    if (out) {
        std::filesystem::rename(fresh, path, error);
    }
    if (out && !error) {
        return true;
    }
    problem = error ? "it cannot be replaced: " + error.message() : "it cannot be written";
    std::filesystem::remove(fresh, error);
    return false;
}

} // namespace rulecanvas::kit
