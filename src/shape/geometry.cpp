#include "shape/geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace rulecanvas {
namespace {

constexpr int VertexTolerance = 4;
constexpr double SegmentBoxMargin = 3.0;
constexpr double VerticalSegmentBand = 3.0;
constexpr double SegmentBand = 4.0;
constexpr double ArrowHeadLength = 10.0;
constexpr double DirectionMarkHalfLength = 20.0;

bool Within(double value, double centre, double margin) {
    return centre - margin <= value && value <= centre + margin;
}

bool WithinSpan(double value, double end1, double end2, double margin) {
    return std::min(end1, end2) - margin <= value && value <= std::max(end1, end2) + margin;
}

PointF MakePoint(double x, double y) {
    return PointF{static_cast<float>(x), static_cast<float>(y)};
}

} // namespace

int TruncateToInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

PointF WholePixels(const PointF& point) {
    return MakePoint(TruncateToInt(point.x), TruncateToInt(point.y));
}

int Span(int from, int to) {
    return TruncateToInt(static_cast<double>(to) - from);
}

ViewSize SizeOf(const ClientRect& rect) {
    return ViewSize{Span(rect.left, rect.right), Span(rect.top, rect.bottom)};
}

bool CloserThan(int limit, const PointF& a, const PointF& b) {
    const double dx = static_cast<double>(a.x) - b.x;
    const double dy = static_cast<double>(a.y) - b.y;
    return std::abs(dx) < limit && std::abs(dy) < limit;
}

bool NearPoint(const PointF& p, const PointF& q) {
    return CloserThan(VertexTolerance + 1, p, q);
}

int VertexIndex(const Points& points, const PointF& p) {
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
    for (size_t i = 1; i < path.size(); ++i) {
        if (NearSegment(path[i - 1], path[i], p)) {
            return true;
        }
    }
    return false;
}

bool OnRing(const Points& ring, const PointF& p) {
    if (ring.empty()) {
        return false;
    }
    return VertexIndex(ring, p) >= 0 || OnPath(ring, p) || NearSegment(ring.back(), ring.front(), p);
}

int SideOfLine(const PointF& a, const PointF& b, const PointF& p) {
    const double dx = static_cast<double>(b.x) - a.x;
    const double dy = static_cast<double>(b.y) - a.y;
    return TruncateToInt(dx * (static_cast<double>(p.y) - a.y) - (static_cast<double>(p.x) - a.x) * dy);
}

bool InPolygon(const Points& ring, const PointF& p) {
    int winding = 0;
    for (size_t i = 0; i < ring.size(); ++i) {
        const PointF& from = ring[i];
        const PointF& to = ring[(i + 1) % ring.size()];
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

bool InRectangle(const ClientRect& rect, const PointF& p) {
    const double x = p.x;
    const double y = p.y;
    return rect.left <= x && x <= rect.right && rect.top <= y && y <= rect.bottom;
}

SpannedRectangle SpanRectangle(const PointF& first, const PointF& second, const ClientRect& clip) {
    const bool above = first.y <= second.y;
    const bool leftOf = first.x <= second.x;
    SpannedRectangle spanned{};
    if (above) {
        spanned.firstPoint = leftOf ? Corner::TopLeft : Corner::TopRight;
    } else {
        spanned.firstPoint = leftOf ? Corner::BottomLeft : Corner::BottomRight;
    }
    const PointF& left = leftOf ? first : second;
    const PointF& right = leftOf ? second : first;
    const PointF& top = above ? first : second;
    const PointF& bottom = above ? second : first;
    spanned.rect.left = std::max(TruncateToInt(left.x), 0);
    spanned.rect.top = std::max(TruncateToInt(top.y), 0);
    spanned.rect.right = std::min(TruncateToInt(right.x), static_cast<int>(clip.right));
    spanned.rect.bottom = std::min(TruncateToInt(bottom.y), static_cast<int>(clip.bottom));
    return spanned;
}

PointF ClampRelative(const PointF& anchor, const PointF& p, const ClientRect& clip) {
    const SpannedRectangle spanned = SpanRectangle(anchor, p, clip);
    const bool anchorLeft = spanned.firstPoint == Corner::TopLeft || spanned.firstPoint == Corner::BottomLeft;
    const bool anchorAbove = spanned.firstPoint == Corner::TopLeft || spanned.firstPoint == Corner::TopRight;
    return MakePoint(anchorLeft ? spanned.rect.right : spanned.rect.left,
                     anchorAbove ? spanned.rect.bottom : spanned.rect.top);
}

Points CornersOf(const ClientRect& rect) {
    return {MakePoint(rect.left, rect.top), MakePoint(rect.right, rect.top), MakePoint(rect.right, rect.bottom),
            MakePoint(rect.left, rect.bottom)};
}

Points Moved(const Points& points, float dx, float dy) {
    Points moved = points;
    for (PointF& point : moved) {
        point.x += dx;
        point.y += dy;
    }
    return moved;
}

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
