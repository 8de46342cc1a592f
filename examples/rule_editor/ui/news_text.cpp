#include "ui/news_text.hpp"

#include <algorithm>

namespace rule_editor {

using rulecanvas::kit::RuleNews;
using rulecanvas::kit::RuleState;

namespace {

std::string StateName(RuleState state) {
    constexpr const char* Names[] = {"deleted", "waiting", "being drawn", "complete", "being moved", "point dragged"};
    return Names[static_cast<size_t>(state)];
}

std::string WithoutIdentity(const std::string& text, const std::string& mark) {
    static const std::string key = "\"ShapeID\":";
    std::string result = text.substr(0, text.find_last_not_of("\r\n") + 1);
    const size_t found = result.rfind(key);
    if (found == std::string::npos) {
        return result;
    }
    const size_t begin = found + key.size();
    const size_t end = std::min(result.find_first_of(",}", begin), result.size());
    return result.replace(begin, end - begin, mark);
}

} // namespace

std::string NewsText(const RuleNews& news) {
    const std::string what = news.stateChanged ? StateName(news.before) + " -> " + StateName(news.after) : "selected";
    const std::string name = news.entry != nullptr ? news.entry->rule.name : "a shape";
    const std::string mark = news.entry != nullptr ? "#" + std::to_string(news.entry->number) : "#?";
    return name + ": " + what + "   " + WithoutIdentity(news.text, mark);
}

} // namespace rule_editor
