#pragma once

#include "geometry/points.h"

namespace rulecanvas {

/// A translucent black and white checkerboard over a rectangle, drawn as a layer of its own, and no more of it than fits
/// into the view. A cell size of 0 or less draws nothing.
void DrawMosaic(const PointF& topLeft, const PointF& bottomRight, int cellSize, const ViewSize& view,
                IContainerGraphics& surface);

} // namespace rulecanvas
