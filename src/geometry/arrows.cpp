#include "geometry/arrows.h"

#include <cmath>

namespace rulecanvas {
namespace {

constexpr double ArrowHeadLength = 10.0;
constexpr double DirectionMarkHalfLength = 20.0;

PointF MakePoint(double x, double y) {
    return PointF{static_cast<float>(x), static_cast<float>(y)};
}

} // namespace

double ArrowHeadHalfAngle() {
    return 3.1415926 / 6.0;
}

double DirectionArrowHalfAngle() {
    return 0.5235987756666667;
}

ArrowBarbs BarbsOf(PointF a, const PointF& b, double halfAngle) {
    if (a.x == b.x) {
        a.x += 1.0F; // a finite slope
    }
    const double angle = std::atan((static_cast<double>(a.y) - b.y) / (static_cast<double>(a.x) - b.x));
    const double length = a.x < b.x ? -ArrowHeadLength : ArrowHeadLength;
    const auto barb = [&](double direction) {
        return MakePoint(b.x + length * std::cos(direction), b.y + length * std::sin(direction));
    };
    return ArrowBarbs{barb(angle - halfAngle), barb(angle + halfAngle)};
}

CrossStroke DirectionMarkOf(const PointF& a, const PointF& b) {
    const double d = DirectionMarkHalfLength;
    const double middleX = (static_cast<double>(a.x) + b.x) / 2.0;
    const double middleY = (static_cast<double>(a.y) + b.y) / 2.0;
    if (a.x == b.x) {
        return CrossStroke{MakePoint(a.x - d, middleY), MakePoint(a.x + d, middleY)};
    }
    const double slope = (static_cast<double>(a.y) - b.y) / (static_cast<double>(a.x) - b.x);
    const double across = d * std::sin(std::atan(slope));
    const double along = d * std::cos(std::atan(slope));
    return CrossStroke{MakePoint(middleX + across, middleY - along), MakePoint(middleX - across, middleY + along)};
}

} // namespace rulecanvas
