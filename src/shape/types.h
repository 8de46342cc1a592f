#pragma once

#include "rulecanvas/rulecanvas.h"

#include <vector>

namespace rulecanvas {

using Points = std::vector<PointF>;

/// Width and height of a view's client area; 0 or less while unknown.
struct ViewSize {
    int width = 0;
    int height = 0;

    bool Known() const { return width > 0 && height > 0; }
};

struct FittedPoints {
    Points points;
    ViewSize view;
};

/// Where a shape stands in its life. The numbers are part of every state notification.
enum ShapeState : int {
    Deleted = 0,
    Waiting = 1,
    Drawing = 2,
    Complete = 3,
    Moving = 4,
    Adjusting = 5,
};

/// How strongly a shape claims a press; the strongest claim wins.
enum HitLevel : int {
    Miss = 0,
    Outside = 3,
    Inside = 4,
    OnOutline = 5,
    Busy = 6,
};

constexpr ColorF OpaqueColour(float red, float green, float blue) {
    return ColorF{1.0F, red, green, blue};
}

/// Of a boolean of the host only the low byte counts.
constexpr bool ReadBool(Bool32 value) {
    return (value & 0xFFU) != 0;
}

constexpr Bool32 ToBool32(bool value) {
    return value ? 1U : 0U;
}

inline bool operator==(const PointF& a, const PointF& b) {
    return a.x == b.x && a.y == b.y;
}

inline bool operator!=(const PointF& a, const PointF& b) {
    return !(a == b);
}

inline PointF PositionOf(const ContainerMouseEvent& event) {
    return PointF{event.x, event.y};
}

} // namespace rulecanvas
