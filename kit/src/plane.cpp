#include "plane.hpp"

#include <algorithm>
#include <cmath>

namespace rulecanvas::kit {

namespace {

constexpr double PointTolerance = 4.0;
constexpr double BoxTolerance = 3.0;
constexpr double UprightTolerance = 3.0;
constexpr double SlantTolerance = 4.0;

struct Vector {
    double x;
    double y;
};

Vector Between(PointF from, PointF to) {
    return {static_cast<double>(to.x) - from.x, static_cast<double>(to.y) - from.y};
}

/// Positive, zero or negative: the side of the line from `a` to `b` on which `p` lies.
double Side(PointF a, PointF b, PointF p) {
    const Vector ab = Between(a, b);
    const Vector ap = Between(a, p);
    return ab.x * ap.y - ap.x * ab.y;
}

bool InSpan(double value, double end1, double end2, double margin) {
    return std::min(end1, end2) - margin <= value && value <= std::max(end1, end2) + margin;
}

bool InBox(PointF a, PointF b, PointF p, double margin) {
    return InSpan(p.x, a.x, b.x, margin) && InSpan(p.y, a.y, b.y, margin);
}

bool OnSegment(PointF a, PointF b, PointF p) {
    if (!InBox(a, b, p, BoxTolerance)) {
        return false;
    }
    const Vector ab = Between(a, b);
    const Vector ap = Between(a, p);
    if (ab.x == 0.0) {
        return std::fabs(ap.x) <= UprightTolerance;
    }
    const bool steep = std::fabs(ab.y) > std::fabs(ab.x);
    return steep ? std::fabs(ap.x - ap.y * ab.x / ab.y) <= SlantTolerance
                 : std::fabs(ap.y - ap.x * ab.y / ab.x) <= SlantTolerance;
}

bool Touches(PointF a, PointF b, PointF p) {
    return Side(a, b, p) == 0.0 && InBox(a, b, p, 0.0);
}

bool Apart(double side1, double side2) {
    return (side1 > 0.0 && side2 < 0.0) || (side1 < 0.0 && side2 > 0.0);
}

} // namespace

bool NearAny(const std::vector<PointF>& points, PointF at) {
    return std::any_of(points.begin(), points.end(), [at](PointF point) {
        const Vector distance = Between(at, point);
        return std::trunc(std::fabs(distance.x)) <= PointTolerance &&
               std::trunc(std::fabs(distance.y)) <= PointTolerance;
    });
}

bool OnPath(const std::vector<PointF>& path, PointF at) {
    for (size_t i = 1; i < path.size(); ++i) {
        if (OnSegment(path[i - 1], path[i], at)) {
            return true;
        }
    }
    return false;
}

bool InRing(const std::vector<PointF>& ring, PointF at) {
    int winding = 0;
    for (size_t i = 0; i < ring.size(); ++i) {
        const PointF from = ring[i];
        const PointF to = ring[(i + 1) % ring.size()];
        if (from.y <= at.y && to.y > at.y && Side(from, to, at) > 0.0) {
            ++winding;
        } else if (from.y > at.y && to.y <= at.y && Side(from, to, at) < 0.0) {
            --winding;
        }
    }
    return winding != 0;
}

bool SegmentsMeet(PointF a, PointF b, PointF c, PointF d) {
    if (Apart(Side(a, b, c), Side(a, b, d)) && Apart(Side(c, d, a), Side(c, d, b))) {
        return true;
    }
    return Touches(a, b, c) || Touches(a, b, d) || Touches(c, d, a) || Touches(c, d, b);
}

} // namespace rulecanvas::kit
