#pragma once

#include "rulecanvas/rulecanvas.h"

#include <functional>
#include <string>
#include <vector>

namespace rulecanvas::test {

using Lines = std::vector<std::string>;

/// "(10,20.5)"; at most two decimals.
std::string Written(const PointF& point);

/// What a paint draws:
///
///     line (0,0)-(10,10) w2 yellow            with " dashed" for pen style 1
///     rect (0,0)-(10,10) w2 blue
///     ellipse (0,0)-(10,10) w2 yellow         fill-ellipse ... for a filled one
///     text (0,0) "A" size 2 yellow
///     caption "A" at (0,0)(10,10) yellow clip 0,0,800,600
///     layer, layer-size 20x20, fill (0,0)-(8,8) 0,0,0@128, layer-end (5,5)
///
/// Colours are named when they are the two defaults, else "r,g,b", with "@alpha" when not opaque. Every character is 7
/// pixels wide and 12 high. `onCall` runs inside every call of the surface.
Lines Drawn(
    const std::function<void(IContainerGraphics&)>& paint, std::function<void()> onCall = [] {});

} // namespace rulecanvas::test
