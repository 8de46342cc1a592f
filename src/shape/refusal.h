#pragma once

#include <string>

namespace rulecanvas {

/// Why a configuration is not taken: what should stand there, what does, and where.
struct Refusal {
    std::string expected;
    std::string found;
    /// "$" is the configuration text, "$.gate[2]" a part of it, "type" and "option" are the other texts of the call.
    std::string place;
};

} // namespace rulecanvas
