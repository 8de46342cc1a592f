#include "docs/figure_behaviour.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace rulecanvas::test {
namespace {

struct Cell {
    const char* type;
    const char* key;
    const char* mark;
};

const Cell Cells[] = {
#include "style.inc"
};

std::string ColourOf(const std::string& name) {
    return R"({"ShapeColor":[{"ColorName":")" + name + R"(","R":1,"G":2,"B":3}]})";
}

/// A style in which the key has another value than it has without one.
std::string StyleWith(const std::string& key) {
    static const std::map<std::string, std::string> values{
        {"LineThickness", "9"},           {"UnSelLineThickness", "9"}, {"PenStyle", "1"},      {"Direction", "3"},
        {"CanAdjust", "false"},           {"CanMove", "false"},        {"XArrowLine", "true"}, {"FontSize", "30"},
        {"mosaic", R"({"enable":true})"}, {"IsFill", "true"},
    };
    const auto found = values.find(key);
    return found == values.end() ? ColourOf(key) : "{\"" + key + "\":" + found->second + "}";
}

TEST(DocumentedStyleKeys, AreHeededByTheTypesOfTheTable) {
    for (const Cell& cell : Cells) {
        const bool heeded = BehaviourOf(cell.type, StyleWith(cell.key)) != BehaviourOf(cell.type, "");
        EXPECT_STREQ(heeded ? "yes" : "", cell.mark) << cell.type << " and " << cell.key;
    }
}

TEST(DocumentedStyleKeys, AreThoseOfAllTypes) {
    constexpr size_t registeredTypes = 15;
    std::set<std::string> types;
    std::set<std::string> keys;
    for (const Cell& cell : Cells) {
        types.insert(cell.type);
        keys.insert(cell.key);
        EXPECT_NE(BehaviourOf(cell.type, ""), Lines{"refused"}) << cell.type;
    }
    EXPECT_EQ(types.size(), registeredTypes);
    EXPECT_EQ(keys.size() * types.size(), std::size(Cells));
}

TEST(StyleKeysWithoutEffect, ChangeNoFigure) {
    std::set<std::string> types;
    for (const Cell& cell : Cells) {
        types.insert(cell.type);
    }
    for (const std::string& type : types) {
        for (const char* key : {"IsFill", "FillColor", "FontColor"}) {
            EXPECT_EQ(BehaviourOf(type, StyleWith(key)), BehaviourOf(type, "")) << type << " and " << key;
        }
    }
}

} // namespace
} // namespace rulecanvas::test
