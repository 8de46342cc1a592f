#pragma once

#include "rulecanvas/rulecanvas.h"

#include <vector>

namespace rulecanvas::torture {

/// A kind of figure and how a user makes and edits one, in a view of 800 x 600 pixels.
struct Figure {
    const char* type;
    const char* option;
    /// Steps that draw it; see Host::Do.
    const char* drawing;
    /// Where the finished figure can be grabbed by a point, and where it can be grabbed as a whole.
    PointF vertex;
    PointF body;
};

const std::vector<Figure>& Figures();

} // namespace rulecanvas::torture
