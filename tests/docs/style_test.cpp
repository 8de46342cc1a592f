#include "docs/figure_behaviour.h"
#include "support/types.h"

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
    std::set<std::string> types;
    std::set<std::string> keys;
    for (const Cell& cell : Cells) {
        types.insert(cell.type);
        keys.insert(cell.key);
    }
    EXPECT_EQ(types.size(), std::size(Types));
    EXPECT_EQ(keys.size() * types.size(), std::size(Cells));
}

TEST(StyleKeysWithoutEffect, ChangeNoFigure) {
    for (const Type& type : Types) {
        const Lines plain = BehaviourOf(type.name, "");
        EXPECT_NE(plain, Lines{"refused"}) << type.name;
        for (const char* key : {"IsFill", "FillColor", "FontColor"}) {
            EXPECT_EQ(BehaviourOf(type.name, StyleWith(key)), plain) << type.name << " and " << key;
        }
    }
}

} // namespace
} // namespace rulecanvas::test
