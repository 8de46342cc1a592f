#include "rules/rules_file.hpp"

#include "rules/json.hpp"
#include "unicode.hpp"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace rule_editor {

namespace {

constexpr const char* RULES = "rules";
constexpr const char* DIRECTION = "direction";
constexpr const char* SELECTED_COLOUR = "selectedColour";
constexpr const char* UNSELECTED_COLOUR = "unselectedColour";

struct TextField {
    const char* key;
    std::string Rule::*member;
};

constexpr std::array<TextField, 6> TEXT_FIELDS = {{{"type", &Rule::type},
                                                   {"label", &Rule::label},
                                                   {"name", &Rule::name},
                                                   {"option", &Rule::option},
                                                   {"caption", &Rule::caption},
                                                   {"configuration", &Rule::configuration}}};

Json::Value toJson(const std::optional<Colour>& colour) {
    if (!colour) {
        return Json::Value();
    }
    Json::Value json(Json::arrayValue);
    json.append(colour->red);
    json.append(colour->green);
    json.append(colour->blue);
    return json;
}

Json::Value toJson(const Rule& rule) {
    Json::Value json(Json::objectValue);
    for (const TextField& field : TEXT_FIELDS) {
        json[field.key] = rule.*field.member;
    }
    if (rule.direction) {
        json[DIRECTION] = *rule.direction;
    }
    json[SELECTED_COLOUR] = toJson(rule.selectedColour);
    json[UNSELECTED_COLOUR] = toJson(rule.unselectedColour);
    return json;
}

[[noreturn]] void fail(const std::string& key, const char* wanted) {
    throw std::runtime_error("\"" + key + "\" of a rule is not " + wanted);
}

int32_t wholeNumber(const Json::Value& json, const std::string& key) {
    if (json.type() != Json::intValue || !json.isInt()) {
        fail(key, "a whole number");
    }
    return json.asInt();
}

std::string text(const Json::Value& rule, const std::string& key) {
    const Json::Value& json = rule[key];
    if (json.isNull()) {
        return std::string();
    }
    if (!json.isString()) {
        fail(key, "a text");
    }
    return json.asString();
}

std::optional<Colour> colour(const Json::Value& rule, const std::string& key) {
    const Json::Value& json = rule[key];
    if (json.isNull()) {
        return std::nullopt;
    }
    if (!json.isArray() || json.size() != 3) {
        fail(key, "an array of three numbers");
    }
    return Colour{wholeNumber(json[0], key), wholeNumber(json[1], key), wholeNumber(json[2], key)};
}

Rule toRule(const Json::Value& json) {
    if (!json.isObject()) {
        throw std::runtime_error("a rule is not an object");
    }
    Rule rule;
    for (const TextField& field : TEXT_FIELDS) {
        rule.*field.member = text(json, field.key);
    }
    if (!json[DIRECTION].isNull()) {
        rule.direction = wholeNumber(json[DIRECTION], DIRECTION);
    }
    rule.selectedColour = colour(json, SELECTED_COLOUR);
    rule.unselectedColour = colour(json, UNSELECTED_COLOUR);
    return rule;
}

Json::Value parse(std::istream& file) {
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    Json::Value root;
    std::string problem;
    if (!parseJson(text, root, problem)) {
        throw std::runtime_error("no JSON: " + problem);
    }
    Json::Value list = member(root, RULES);
    if (!list.isArray()) {
        throw std::runtime_error("there is no array \"rules\"");
    }
    return list;
}

} // namespace

void saveRules(const std::wstring& path, const std::vector<Rule>& rules) {
    Json::Value root(Json::objectValue);
    Json::Value& list = root[RULES] = Json::Value(Json::arrayValue);
    for (const Rule& rule : rules) {
        list.append(toJson(rule));
    }
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "  ";
    builder["emitUTF8"] = true;
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file << Json::writeString(builder, root) << '\n';
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + toUtf8(path));
    }
}

std::vector<Rule> loadRules(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot open " + toUtf8(path));
    }
    try {
        const Json::Value list = parse(file);
        std::vector<Rule> rules;
        for (const Json::Value& json : list) {
            rules.push_back(toRule(json));
        }
        return rules;
    } catch (const std::exception& error) {
        throw std::runtime_error(toUtf8(path) + ": " + error.what());
    }
}

} // namespace rule_editor
