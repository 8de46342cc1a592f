#pragma once

#include "geometry/points.h"

#include <limits>

namespace rulecanvas {

/// Where a shape may answer a press. It is asked itself only there: a claim may be too wide, never too narrow.
struct Claim {
    static constexpr float Endless = std::numeric_limits<float>::infinity();

    float left = Endless;
    float top = Endless;
    float right = -Endless;
    float bottom = -Endless;
    /// Beside these bounds the shape answers a left press, as one that lies outside.
    bool answersOutside = false;

    static Claim Nowhere() { return {}; }
    static Claim Everywhere() { return Claim{-Endless, -Endless, Endless, Endless, false}; }
    /// The bounds of the points and `reach` pixels more; everywhere when a point is no number.
    static Claim Around(const Points& points, float reach, bool answersOutside);

    bool Holds(const PointF& point) const {
        return left <= point.x && point.x <= right && top <= point.y && point.y <= bottom;
    }
};

} // namespace rulecanvas
