#pragma once

#include "rules/rule.hpp"

#include <vector>

namespace rule_editor {

/* A rules file is one JSON object: {"rules": [...]}. Both functions throw std::runtime_error with a message for the
 * user. */
void saveRules(const std::wstring& path, const std::vector<Rule>& rules);
std::vector<Rule> loadRules(const std::wstring& path);

} // namespace rule_editor
