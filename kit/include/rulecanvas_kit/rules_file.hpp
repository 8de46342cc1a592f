/// Rules in a file: versioned JSON, described in docs/reference/rules_file.md.
///
/// Reading is all or nothing: when anything is wrong there is no result, and `problem` names every refused rule and why.
/// Nothing here throws but for want of memory, and nothing is shared between calls, so any thread may call.
#ifndef RULECANVAS_KIT_RULES_FILE_HPP
#define RULECANVAS_KIT_RULES_FILE_HPP

#include <rulecanvas_kit/rule.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace rulecanvas::kit {

struct RulesFile {
    std::optional<Size> picture; ///< Size in pixels of the video that the rules were drawn on; informative.
    std::vector<Rule> rules;
    std::string others; ///< Unknown members of the file, as the text of a JSON object; they are written back.
};

std::optional<RulesFile> ParseRules(const std::string& text, std::string& problem);
std::string FormatRules(const RulesFile& file);

std::optional<RulesFile> ReadRulesFile(const std::filesystem::path& path, std::string& problem);
/// Writes a new file beside `path` that then replaces it: whatever happens, the old one or the new one is there, whole.
bool WriteRulesFile(const std::filesystem::path& path, const RulesFile& file, std::string& problem);

} // namespace rulecanvas::kit

#endif
