#pragma once

#include <string>
#include <vector>

namespace rule_editor {

/// One line of a script: a command, and after it words or one text.
struct ScriptStep {
    int line = 0;
    std::string command;
    std::vector<std::string> words;
    std::string text; ///< Everything after the command, without the blanks around it.
};

/// Reads a script; empty lines and lines that begin with # are left out. Throws std::runtime_error when the file cannot
/// be read.
std::vector<ScriptStep> ReadScript(const std::wstring& path);

/// Whole numbers among the words of a step; throws std::runtime_error for anything else.
int NumberAt(const ScriptStep& step, size_t index);

} // namespace rule_editor
