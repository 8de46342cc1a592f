#pragma once

#include "shape/claim.h"

#include <cstdint>
#include <vector>

namespace rulecanvas {

/// Bounds of many figures, side by side so that one sweep over them is a few instructions each.
class BoundsTable {
  public:
    void Resize(size_t count);
    void Set(size_t place, const Claim& claim);
    /// The places whose bounds hold the point, in ascending order; appended.
    void Find(const PointF& point, std::vector<uint32_t>& places) const;

  private:
    bool Holds(size_t place, const PointF& point) const;

    std::vector<float> left;
    std::vector<float> top;
    std::vector<float> right;
    std::vector<float> bottom;
};

} // namespace rulecanvas
