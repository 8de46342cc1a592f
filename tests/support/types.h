// Every type of figure, once.

#pragma once

namespace rulecanvas::test {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

struct Type {
    const char* name;
    /// A complete figure of a rule named "rule"; all but a pixel counter have a point at (1000,1000).
    const char* config;
};

constexpr const char* Corners = R"({"rule":[[1000,1000],[3000,3000]]})";
constexpr const char* Ring = R"({"rule":[[1000,1000],[3000,1000],[3000,3000]]})";
constexpr const char* Place = R"({"rule":[[1000,1000]]})";

constexpr Type Types[] = {
    {"Rect", Corners},
    {"OvalShape", R"({"OvalShape":[[1000,1000],[3000,3000]]})"},
    {"PixelCountShape", R"({"rule":[8,8]})"},
    {"LineShape", Corners},
    {"VerticalLineShape", R"({"rule":[[1000,1000],[1000,3000]]})"},
    {"HorizontalLineShape", R"({"rule":[[1000,1000],[3000,1000]]})"},
    {"DashLineShape", Corners},
    {"ArrowLineShape", Corners},
    {"XLineShape", R"({"rule":[[1000,1000],[3000,3000],[5000,1000]]})"},
    {"BrokenLine", Ring},
    {"Polygon", Ring},
    {"VirablePolygon", Ring},
    {"CrossShape", Place},
    {"BigCrossShape", R"({"rule":[[0,999,8191,1001],[999,0,1001,8191],[0,1999,8191,2001],[1999,0,2001,8191]]})"},
    {"SpotShape", Place},
};

} // namespace rulecanvas::test
