#pragma once

#include "figures.h"

namespace rulecanvas::bench {

/// The surface calls of a finished figure, from its points alone.
void DrawBare(Kind kind, const Points& points, IContainerGraphics& surface);

} // namespace rulecanvas::bench
