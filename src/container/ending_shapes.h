#pragma once

#include "container/shape_map.h"

#include <vector>

namespace rulecanvas {

/// Shapes that end together. Each stops drawing when it is added; one pause then serves them all, so that a paint on
/// another thread can finish with their figures before these are freed, in the order in which they came.
class EndingShapes {
  public:
    EndingShapes() = default;
    ~EndingShapes();
    EndingShapes(const EndingShapes&) = delete;
    EndingShapes& operator=(const EndingShapes&) = delete;

    /// Ends the shape, unless that was claimed already.
    void Add(const ShapePtr& shape) noexcept;
    /// Ends a shape whose end the caller has claimed.
    void AddClaimed(const ShapePtr& shape) noexcept;

  private:
    std::vector<ShapePtr> shapes;
};

} // namespace rulecanvas
