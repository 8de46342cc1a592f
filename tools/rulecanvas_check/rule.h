#pragma once

#include <rulecanvas/host.hpp>

#include <optional>
#include <string>
#include <vector>

namespace rulecanvas::check {

struct Colour {
    int32_t red = 0;
    int32_t green = 0;
    int32_t blue = 0;
};

struct PictureSize {
    int32_t width = 768;
    int32_t height = 576;
};

struct PointLimits {
    int32_t maximum = 0;
    int32_t minimum = 0;
};

/// One rule as a host would give it to the library.
struct Rule {
    std::string type;
    std::string name;
    std::string label;
    std::string option;
    std::string configuration; ///< Empty: the user has not drawn it yet.
    std::optional<std::string> caption;
    std::optional<Colour> selected;
    std::optional<Colour> unselected;
    std::optional<int32_t> direction;
    std::optional<PointLimits> pointLimits;
    ViewID view = 0;
    /// Why it is refused; filled by whoever finds a reason, the reader of the file or the library.
    std::vector<std::string> reasons;
};

/// The rules of one file.
struct RuleList {
    std::vector<Rule> rules;
    PictureSize picture;
    /// Why the file as a whole is refused.
    std::vector<std::string> reasons;

    bool IsTaken() const {
        bool taken = reasons.empty();
        for (const Rule& rule : rules) {
            taken = taken && rule.reasons.empty();
        }
        return taken;
    }
};

} // namespace rulecanvas::check
