#include "geometry/segments.h"

#include "geometry/hit_tests.h"

#include <algorithm>

namespace rulecanvas {
namespace {

/// Whether `p`, known to be on the line, lies between the ends of the segment.
bool Between(const PointF& a, const PointF& b, const PointF& p) {
    return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
           p.y <= std::max(a.y, b.y);
}

bool Touches(const PointF& a, const PointF& b, const PointF& p, double side) {
    return side == 0.0 && Between(a, b, p);
}

bool Opposite(double side1, double side2) {
    return (side1 > 0.0 && side2 < 0.0) || (side1 < 0.0 && side2 > 0.0);
}

/// Whether an edge of the closed ring touches one of the ring's first `count` edges; those that share a vertex with it
/// are left out.
bool EdgeCrosses(const Points& ring, size_t edge, size_t count) {
    const auto next = [&](size_t i) { return (i + 1) % ring.size(); };
    for (size_t other = 0; other < count; ++other) {
        const bool apart = other != edge && next(other) != edge && next(edge) != other;
        if (apart && SegmentsCross(ring[edge], ring[next(edge)], ring[other], ring[next(other)])) {
            return true;
        }
    }
    return false;
}

} // namespace

bool SegmentsCross(const PointF& a, const PointF& b, const PointF& c, const PointF& d) {
    const double cSide = ExactSide(a, b, c);
    const double dSide = ExactSide(a, b, d);
    const double aSide = ExactSide(c, d, a);
    const double bSide = ExactSide(c, d, b);
    if (Opposite(cSide, dSide) && Opposite(aSide, bSide)) {
        return true;
    }
    return Touches(a, b, c, cSide) || Touches(a, b, d, dSide) || Touches(c, d, a, aSide) || Touches(c, d, b, bSide);
}

std::optional<PointF> LineIntersection(const PointF& a, const PointF& b, const PointF& c, const PointF& d) {
    const double abX = static_cast<double>(b.x) - a.x;
    const double abY = static_cast<double>(b.y) - a.y;
    const double cdX = static_cast<double>(d.x) - c.x;
    const double cdY = static_cast<double>(d.y) - c.y;
    const double turn = abX * cdY - abY * cdX;
    if (turn == 0.0) {
        return std::nullopt;
    }
    const double along = ((static_cast<double>(c.x) - a.x) * cdY - (static_cast<double>(c.y) - a.y) * cdX) / turn;
    return PointF{static_cast<float>(a.x + along * abX), static_cast<float>(a.y + along * abY)};
}

bool IsConvex(const Points& ring) {
    constexpr size_t alwaysConvex = 3;
    if (ring.size() <= alwaysConvex) {
        return true;
    }
    for (size_t i = 0; i < ring.size(); ++i) {
        const PointF& from = ring[i];
        const PointF& to = ring[(i + 1) % ring.size()];
        const auto isLeft = [&](const PointF& p) { return SideOfLine(from, to, p) > 0; };
        const auto isRight = [&](const PointF& p) { return SideOfLine(from, to, p) < 0; };
        if (std::any_of(ring.begin(), ring.end(), isLeft) && std::any_of(ring.begin(), ring.end(), isRight)) {
            return false;
        }
    }
    return true;
}

bool LastEdgeCrosses(const Points& path) {
    const size_t n = path.size();
    return n >= 2 && EdgeCrosses(path, n - 2, n - 2);
}

bool ClosingEdgeCrosses(const Points& path) {
    const size_t n = path.size();
    return n > 0 && EdgeCrosses(path, n - 1, n - 1);
}

bool VertexCrosses(const Points& ring, size_t vertex) {
    const size_t n = ring.size();
    return EdgeCrosses(ring, vertex, n) || EdgeCrosses(ring, (vertex + n - 1) % n, n);
}

bool RingCrosses(const Points& ring) {
    for (size_t edge = 0; edge < ring.size(); ++edge) {
        if (EdgeCrosses(ring, edge, edge)) {
            return true;
        }
    }
    return false;
}

} // namespace rulecanvas
