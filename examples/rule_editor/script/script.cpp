#include "script/script.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace rule_editor {

namespace {

constexpr const char* Blanks = " \t\r";

ScriptStep ToStep(const std::string& line, int number) {
    ScriptStep step;
    step.line = number;
    std::istringstream words(line);
    words >> step.command;
    for (std::string word; words >> word;) {
        step.words.push_back(word);
    }
    const size_t begin = line.find_first_not_of(Blanks, line.find(step.command) + step.command.size());
    if (begin != std::string::npos) {
        step.text = line.substr(begin, line.find_last_not_of(Blanks) + 1 - begin);
    }
    return step;
}

} // namespace

std::vector<ScriptStep> ReadScript(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot open the script " + rulecanvas::kit::ToUtf8(path));
    }
    std::vector<ScriptStep> steps;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        const size_t begin = line.find_first_not_of(Blanks);
        if (begin != std::string::npos && line[begin] != '#') {
            steps.push_back(ToStep(line, number));
        }
    }
    return steps;
}

int NumberAt(const ScriptStep& step, size_t index) {
    const std::string& word = step.words.at(index);
    char* end = nullptr;
    const long value = std::strtol(word.c_str(), &end, 10);
    if (*end != '\0' || value < -100000 || value > 100000) {
        throw std::runtime_error("\"" + word + "\" is not a whole number");
    }
    return static_cast<int>(value);
}

} // namespace rule_editor
