#pragma once

#include "geometry/arrows.h"

#include <cstddef>

namespace rulecanvas {

/// No direction of crossing is shown.
constexpr int NoCrossing = -1;
/// Over the line from side A to side B.
constexpr int CrossingAToB = 0;
/// Over the line from side B to side A.
constexpr int CrossingBToA = 1;
constexpr int CrossingBothWays = 2;

struct CrossingArrow {
    PointF tail;
    PointF tip;
};

/// None, one or two arrows.
class CrossingArrowList {
  public:
    void Add(const CrossingArrow& arrow) { arrows[count++] = arrow; }
    const CrossingArrow* begin() const { return arrows; }
    const CrossingArrow* end() const { return arrows + count; }

  private:
    CrossingArrow arrows[2]{};
    size_t count = 0;
};

/// Whether side A of the segment lies at the upper end of the stroke across it, and side B at the lower one; else the
/// other way round.
bool SideAIsUpper(const PointF& from, const PointF& to);

/// The arrows along the stroke across a segment that show a direction of crossing. Every direction that is neither of
/// the two single ones shows two arrows.
CrossingArrowList CrossingArrows(const PointF& from, const PointF& to, const CrossStroke& stroke, int direction);

} // namespace rulecanvas
