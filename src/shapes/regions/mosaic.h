#pragma once

#include "shape/types.h"

namespace rulecanvas {

/// A translucent black and white checkerboard over a rectangle, drawn as a layer of its own. A cell size of 0 or less
/// draws nothing.
void DrawMosaic(const PointF& topLeft, const PointF& bottomRight, int cellSize, IContainerGraphics& surface);

} // namespace rulecanvas
