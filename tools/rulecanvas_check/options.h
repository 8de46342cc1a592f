#pragma once

#include <optional>
#include <string>
#include <vector>

namespace rulecanvas::check {

extern const char* const Usage;

struct Options {
    std::optional<std::string> type; ///< Given: every file is a single configuration of this type.
    std::string option;
    bool json = false;
    bool help = false;
    std::vector<std::string> files;
};

/// Without a value when the arguments make no sense; `complaint` says why.
std::optional<Options> ReadOptions(const std::vector<std::string>& arguments, std::string& complaint);

} // namespace rulecanvas::check
