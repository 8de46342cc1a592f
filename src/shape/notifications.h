#pragma once

#include "shape/shape.h"

#include <json/value.h>

namespace rulecanvas {

/// One line of JSON that tells the host that a shape was selected.
std::string SelectionEvent(const CVideoAnalyseShape& shape);

/// One line of JSON that tells the host that a shape went from one state to another.
std::string StateEvent(const CVideoAnalyseShape& shape, int previousState, int newState);

/// What the host's report of all shapes tells of one.
Json::Value StateOf(const CVideoAnalyseShape& shape);

} // namespace rulecanvas
