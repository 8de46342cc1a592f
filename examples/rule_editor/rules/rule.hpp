#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace rule_editor {

struct Colour {
    int32_t red = 0;
    int32_t green = 0;
    int32_t blue = 0;
};

/* What a rules file keeps of a rule. Texts are UTF-8, empty or absent when the user gave none. */
struct Rule {
    std::string type;
    std::string label;
    std::string name;
    std::string option;
    std::string caption;
    std::optional<int32_t> direction;
    std::optional<Colour> selectedColour;
    std::optional<Colour> unselectedColour;
    std::string configuration; /* The geometry as the library gave it; empty: still to be drawn. */
};

} // namespace rule_editor
