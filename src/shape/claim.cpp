#include "shape/claim.h"

#include <algorithm>
#include <cmath>

namespace rulecanvas {
namespace {

/// Of a coordinate: many times what rounding can lose of it.
constexpr float Rounding = 1e-6F;

float Widened(float coordinate, float reach) {
    return coordinate + std::copysign(std::abs(reach) + std::abs(coordinate) * Rounding, reach);
}

} // namespace

Claim Claim::Around(const Points& points, float reach, bool answersOutside) {
    Claim claim = Nowhere();
    claim.answersOutside = answersOutside;
    for (const PointF& point : points) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
            return Everywhere();
        }
        claim.left = std::min(claim.left, Widened(point.x, -reach));
        claim.top = std::min(claim.top, Widened(point.y, -reach));
        claim.right = std::max(claim.right, Widened(point.x, reach));
        claim.bottom = std::max(claim.bottom, Widened(point.y, reach));
    }
    return claim;
}

} // namespace rulecanvas
