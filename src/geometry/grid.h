#pragma once

#include "geometry/points.h"

namespace rulecanvas {

/// A place on the 0..8191 grid of the configuration texts.
struct GridPoint {
    int x;
    int y;
};

constexpr int GridSpan = 8191;

/// Pixels, rounded to whole ones, of a place on the grid.
PointF ToPixels(double gridX, double gridY, const ViewSize& view);

/// The nearest place on the grid; the origin on an axis whose size is unknown.
GridPoint ToGrid(const PointF& pixels, const ViewSize& view);

} // namespace rulecanvas
