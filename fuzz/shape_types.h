#pragma once

#include <array>

namespace rulecanvas::fuzz {

constexpr std::array<const char*, 15> ShapeTypes{
    "Rect",          "LineShape",     "VerticalLineShape", "HorizontalLineShape", "ArrowLineShape", "XLineShape",
    "DashLineShape", "BrokenLine",    "Polygon",           "VirablePolygon",      "OvalShape",      "PixelCountShape",
    "CrossShape",    "BigCrossShape", "SpotShape",
};

} // namespace rulecanvas::fuzz
