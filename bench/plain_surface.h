#pragma once

#include <rulecanvas/rulecanvas.h>

namespace rulecanvas::bench {

/// What a paint is measured on: it takes every call, looks at what it is given, and draws nothing.
IContainerGraphics& TheSurface();
/// The calls that it took.
long SurfaceCalls();

} // namespace rulecanvas::bench
