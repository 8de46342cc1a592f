#include "geometry/points.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace rulecanvas {

int TruncateToInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

PointF WholePixels(const PointF& point) {
    return PointF{static_cast<float>(TruncateToInt(point.x)), static_cast<float>(TruncateToInt(point.y))};
}

Points Truncated(Points points) {
    std::transform(points.begin(), points.end(), points.begin(), WholePixels);
    return points;
}

bool CloserThan(int limit, const PointF& a, const PointF& b) {
    const double dx = static_cast<double>(a.x) - b.x;
    const double dy = static_cast<double>(a.y) - b.y;
    return std::abs(dx) < limit && std::abs(dy) < limit;
}

PointF Shifted(const PointF& point, float dx, float dy) {
    return PointF{point.x + dx, point.y + dy};
}

void Shift(Points& points, float dx, float dy) {
    for (PointF& point : points) {
        point = Shifted(point, dx, dy);
    }
}

bool ShiftsExactly(const Points& points, float dx, float dy) {
    const auto exact = [](float from, float by) {
        const double to = from + by;
        return static_cast<double>(from) + by == to && to - from == static_cast<double>(by);
    };
    return std::all_of(points.begin(), points.end(),
                       [&](const PointF& point) { return exact(point.x, dx) && exact(point.y, dy); });
}

} // namespace rulecanvas
