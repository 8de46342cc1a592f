#include "figures.h"

#include <cmath>

namespace rulecanvas::bench {
namespace {

constexpr int Margin = 40;
constexpr int CornerCount = 20;
constexpr double Pi = 3.14159265358979323846;

/// Primes that share no factor with the spans: all places differ until a span is used up.
int64_t Strewn(int64_t index, int64_t prime, int64_t span) {
    return Margin + index * prime % (span - 2 * Margin);
}

Points PolygonAround(const PointF& centre, double radius) {
    Points corners;
    for (int corner = 0; corner < CornerCount; ++corner) {
        const double angle = 2.0 * Pi * corner / CornerCount;
        corners.push_back({static_cast<float>(centre.x + radius * std::cos(angle)),
                           static_cast<float>(centre.y + radius * std::sin(angle))});
    }
    return corners;
}

} // namespace

const char* TypeOf(Kind kind) {
    switch (kind) {
    case Kind::Rectangle:
        return "Rect";
    case Kind::Line:
        return "LineShape";
    default:
        return "Polygon";
    }
}

PointF CentreOf(int index) {
    return {static_cast<float>(Strewn(index, 7919, ViewRect.right)),
            static_cast<float>(Strewn(index, 104729, ViewRect.bottom))};
}

Points FigureAt(Kind kind, int index) {
    const PointF centre = CentreOf(index);
    const double radius = 30.0 + index % 7;
    if (kind == Kind::Polygon) {
        return PolygonAround(centre, radius);
    }
    const auto reach = static_cast<float>(radius);
    return {{centre.x - reach, centre.y - reach}, {centre.x + reach, centre.y + reach}};
}

int OnGrid(float pixel, int32_t span) {
    return static_cast<int>(std::lround(pixel * GridSpan / static_cast<float>(span)));
}

std::string ConfigurationOf(const Points& points) {
    std::string text;
    for (const PointF& point : points) {
        text += (text.empty() ? "[" : ",[") + std::to_string(OnGrid(point.x, ViewRect.right)) + "," +
                std::to_string(OnGrid(point.y, ViewRect.bottom)) + "]";
    }
    return "{\"zone\":[" + text + "]}";
}

} // namespace rulecanvas::bench
