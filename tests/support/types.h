// Every type of figure, once.

#pragma once

#include <algorithm>
#include <iterator>
#include <string>

namespace rulecanvas::test {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

struct Type {
    const char* name;
    /// A complete figure of a rule named "rule" with a point or a corner at (1000,1000). For a pixel counter that is so in
    /// a video as large as the grid.
    const char* config;
};

constexpr const char* Corners = R"({"rule":[[1000,1000],[3000,3000]]})";
constexpr const char* Path = R"({"rule":[[1000,1000],[3000,3000],[5000,1000]]})";
constexpr const char* Place = R"({"rule":[[1000,1000]]})";

constexpr Type Types[] = {
    {"Rect", Corners},
    {"OvalShape", R"({"OvalShape":[[1000,1000],[3000,3000]]})"},
    {"PixelCountShape", R"({"rule":[6191,6191]})"},
    {"LineShape", Corners},
    {"VerticalLineShape", Corners},
    {"HorizontalLineShape", Corners},
    {"DashLineShape", Corners},
    {"ArrowLineShape", Path},
    {"XLineShape", Path},
    {"BrokenLine", Path},
    {"Polygon", Path},
    {"VirablePolygon", Path},
    {"CrossShape", Place},
    {"BigCrossShape", R"({"rule":[[0,999,8191,1001],[999,0,1001,8191],[0,4999,8191,5001],[4999,0,5001,8191]]})"},
    {"SpotShape", Place},
};

inline const char* ConfigOf(const std::string& type) {
    const Type* const found =
        std::find_if(std::begin(Types), std::end(Types), [&](const Type& t) { return type == t.name; });
    return found == std::end(Types) ? "" : found->config;
}

} // namespace rulecanvas::test
