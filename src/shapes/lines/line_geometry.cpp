#include "shapes/lines/line_geometry.h"

#include "geometry/grid.h"
#include "geometry/hit_tests.h"
#include "geometry/segments.h"

#include <algorithm>

namespace rulecanvas {

Points ExtendedAcrossGrid(const Points& line) {
    constexpr float span = GridSpan;
    const PointF& a = line[0];
    const PointF& b = line[1];
    if (a == b) {
        return line;
    }
    if (a.x == b.x) {
        return {PointF{a.x, 0.0F}, PointF{b.x, span}};
    }
    const double slope = (static_cast<double>(a.y) - b.y) / (static_cast<double>(a.x) - b.x);
    const double start = b.y - b.x * slope;
    return {PointF{0.0F, static_cast<float>(start)}, PointF{span, static_cast<float>(span * slope + start)}};
}

bool CrossesPath(const PointF& a, const PointF& b, const Points& path) {
    const auto crosses = [&](const PointF& from, const PointF& to) { return SegmentsCross(a, b, from, to); };
    return std::adjacent_find(path.begin(), path.end(), crosses) != path.end();
}

Points MeetingsWithRing(const PointF& a, const PointF& b, const Points& ring) {
    Points meetings;
    for (size_t i = 0; i < ring.size() && meetings.size() < LinePoints; ++i) {
        const PointF& from = ring[i];
        const PointF& to = ring[(i + 1) % ring.size()];
        const std::optional<PointF> meeting = LineIntersection(a, b, from, to);
        if (meeting && NearSegment(from, to, *meeting) && (meetings.empty() || !CloserThan(1, meetings[0], *meeting))) {
            meetings.push_back(*meeting);
        }
    }
    return meetings;
}

} // namespace rulecanvas
