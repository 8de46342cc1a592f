#pragma once

#include "shape/geometry.h"

#include <vector>

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

/// Whether side A of the segment lies at the upper end of the stroke across it, and side B at the lower one; else the
/// other way round.
bool SideAIsUpper(const PointF& from, const PointF& to);

/// The arrows along the stroke across a segment that show a direction of crossing. Every direction that is neither of
/// the two single ones shows two arrows.
std::vector<CrossingArrow> CrossingArrows(const PointF& from, const PointF& to, const CrossStroke& stroke,
                                          int direction);

} // namespace rulecanvas
