#include "geometry/hit_tests.h"

#include <algorithm>
#include <cmath>

namespace rulecanvas {
namespace {

constexpr int VertexTolerance = 4;
constexpr double SegmentBoxMargin = 3.0;
constexpr double VerticalSegmentBand = 3.0;
constexpr double SegmentBand = 4.0;

bool Within(double value, double centre, double margin) {
    return centre - margin <= value && value <= centre + margin;
}

bool WithinSpan(double value, double end1, double end2, double margin) {
    return std::min(end1, end2) - margin <= value && value <= std::max(end1, end2) + margin;
}

} // namespace

bool NearPoint(const PointF& p, const PointF& q) {
    return CloserThan(VertexTolerance + 1, p, q);
}

int VertexIndex(PointSpan points, const PointF& p) {
    const auto found = std::find_if(points.begin(), points.end(), [&](const PointF& q) { return NearPoint(p, q); });
    return found == points.end() ? -1 : static_cast<int>(found - points.begin());
}

bool NearSegment(const PointF& a, const PointF& b, const PointF& p) {
    if (!WithinSpan(p.x, a.x, b.x, SegmentBoxMargin) || !WithinSpan(p.y, a.y, b.y, SegmentBoxMargin)) {
        return false;
    }
    if (a.x == b.x) {
        return Within(p.x, a.x, VerticalSegmentBand);
    }
    const double dx = static_cast<double>(b.x) - a.x;
    const double dy = static_cast<double>(b.y) - a.y;
    const double slope = dy / dx;
    if (std::fabs(slope) > 1.0) {
        return Within(p.x, (static_cast<double>(p.y) - a.y) * (dx / dy) + a.x, SegmentBand);
    }
    return Within(p.y, slope * (static_cast<double>(p.x) - a.x) + a.y, SegmentBand);
}

bool OnPath(const Points& path, const PointF& p) {
    const auto isNear = [&](const PointF& from, const PointF& to) { return NearSegment(from, to, p); };
    return std::adjacent_find(path.begin(), path.end(), isNear) != path.end();
}

bool OnRing(const Points& ring, const PointF& p) {
    return VertexIndex(ring, p) >= 0 || OnPath(ring, p) || (!ring.empty() && NearSegment(ring.back(), ring.front(), p));
}

double ExactSide(const PointF& a, const PointF& b, const PointF& p) {
    const double dx = static_cast<double>(b.x) - a.x;
    const double dy = static_cast<double>(b.y) - a.y;
    return dx * (static_cast<double>(p.y) - a.y) - (static_cast<double>(p.x) - a.x) * dy;
}

bool InPolygon(const Points& ring, const PointF& p) {
    int winding = 0;
    const size_t count = ring.size();
    for (size_t i = 0; i < count; ++i) {
        const PointF& from = ring[i];
        const PointF& to = ring[i + 1 < count ? i + 1 : 0];
        if (from.y <= p.y) {
            if (to.y > p.y && SideOfLine(from, to, p) > 0) {
                ++winding;
            }
        } else if (to.y <= p.y && SideOfLine(from, to, p) < 0) {
            --winding;
        }
    }
    return winding != 0;
}

} // namespace rulecanvas
