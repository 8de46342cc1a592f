#pragma once

#include "geometry/rectangles.h"

namespace rulecanvas {

enum class Keeps { Nothing, X, Y };

/// What stays where it is while a handle is dragged.
struct OvalHandle {
    size_t anchorCorner;
    Keeps keeps;
    size_t keptCorner;
};

/// Clockwise from the top left, like the points of OvalHandlePoints.
inline constexpr OvalHandle OvalHandles[] = {
    {2, Keeps::Nothing, 0}, {2, Keeps::X, 0}, {3, Keeps::Nothing, 0}, {0, Keeps::Y, 2},
    {0, Keeps::Nothing, 0}, {0, Keeps::X, 2}, {1, Keeps::Nothing, 0}, {1, Keeps::Y, 3},
};

/// The four corners and the middles of the edges between them.
inline std::array<PointF, 8> OvalHandlePoints(const Points& corners) {
    const float halfWidth = (corners[2].x - corners[0].x) / 2.0F;
    const float halfHeight = (corners[2].y - corners[0].y) / 2.0F;
    return {corners[0], Shifted(corners[0], halfWidth, 0.0F),  corners[1], Shifted(corners[1], 0.0F, halfHeight),
            corners[2], Shifted(corners[2], -halfWidth, 0.0F), corners[3], Shifted(corners[3], 0.0F, -halfHeight)};
}

} // namespace rulecanvas
