#pragma once

#include "shape/style.h"

#include <memory>

namespace rulecanvas {

/// A style that never changes. Most figures of a host look like others: one copy serves them all.
using StylePtr = std::shared_ptr<const ShapeStyle>;

/// The given style; the object of one that was asked for lately, if it is equal.
StylePtr Shared(const ShapeStyle& style);

} // namespace rulecanvas
