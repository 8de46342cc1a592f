/// A rule as a host keeps it: what a shape is made from, and what was set on it since.
#ifndef RULECANVAS_KIT_RULE_HPP
#define RULECANVAS_KIT_RULE_HPP

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

namespace rulecanvas::kit {

struct Size {
    int width = 0;
    int height = 0;

    bool operator==(Size other) const { return width == other.width && height == other.height; }
    bool operator!=(Size other) const { return !(*this == other); }
};

/// Components 0..255.
struct Colour {
    int32_t red = 0;
    int32_t green = 0;
    int32_t blue = 0;

    bool operator==(const Colour& other) const {
        return std::tie(red, green, blue) == std::tie(other.red, other.green, other.blue);
    }
};

struct PointLimits {
    int32_t maximum = 0;
    int32_t minimum = 0;

    bool operator==(const PointLimits& other) const { return maximum == other.maximum && minimum == other.minimum; }
};

/// Texts are UTF-8.
struct Rule {
    std::string type; ///< As the library registers it, for instance "Rect".
    std::string name; ///< Unique among the rules of a host; the member of `configuration` that holds the geometry.
    std::string label;
    std::string caption;
    std::string option;        ///< A mode word, or a style as the text of a JSON object.
    std::string configuration; ///< The text of a JSON object; empty: still to be drawn.
    std::optional<Colour> selectedColour;
    std::optional<Colour> unselectedColour;
    std::optional<int32_t> direction; ///< -1..5
    std::optional<PointLimits> pointLimits;
    bool enabled = true; ///< A rule that is not is drawn, but takes no presses.
    bool visible = true;
    bool locked = false; ///< Takes no presses, although it is in force.
    uint32_t view = 0;
    std::string others; ///< Members of a rules file that this version does not know, as the text of a JSON object.

    bool operator==(const Rule& other) const {
        return std::tie(type, name, label, caption, option, configuration, selectedColour, unselectedColour, direction,
                        pointLimits, enabled, visible, locked, view, others) ==
               std::tie(other.type, other.name, other.label, other.caption, other.option, other.configuration,
                        other.selectedColour, other.unselectedColour, other.direction, other.pointLimits, other.enabled,
                        other.visible, other.locked, other.view, other.others);
    }
    bool operator!=(const Rule& other) const { return !(*this == other); }
};

} // namespace rulecanvas::kit

#endif
