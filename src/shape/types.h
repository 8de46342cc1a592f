#pragma once

#include "geometry/rectangles.h"

namespace rulecanvas {

/// Where a shape stands in its life. The numbers are part of every state notification.
enum ShapeState : int {
    Deleted = 0,
    Waiting = 1,
    Drawing = 2,
    Complete = 3,
    Moving = 4,
    Adjusting = 5,
};

/// Numbers of the state report; shapes of other kinds have 0.
enum ShapeType : int {
    FreeLineType = 1,
    HorizontalLineType = 2,
    VerticalLineType = 3,
    BrokenLineType = 4,
    RectangleType = 5,
};

/// How many points a path may have, unless the host sets another limit.
constexpr int LongestPath = 20;

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

inline PointF PositionOf(const ContainerMouseEvent& event) {
    return PointF{event.x, event.y};
}

/// An event of the mouse with the client rectangle of its view, for which the host was asked once.
struct PointerEvent {
    const ContainerMouseEvent& record;
    ClientRect view;
    PointF position = PositionOf(record);

    /// False while the view has no size, as that of a minimised window: nothing could be placed in it.
    bool HasView() const { return SizeOf(view).Known(); }
    /// The position in whole pixels, kept inside the view as seen from `anchor`.
    PointF ClampedFrom(const PointF& anchor) const { return ClampRelative(anchor, position, view); }
};

} // namespace rulecanvas
