#include "geometry/rectangles.h"

#include <algorithm>
#include <cstdint>

namespace rulecanvas {
namespace {

PointF MakePoint(int x, int y) {
    return PointF{static_cast<float>(x), static_cast<float>(y)};
}

} // namespace

int Span(int from, int to) {
    const int64_t span = int64_t{to} - from;
    return static_cast<int>(std::clamp<int64_t>(span, INT32_MIN, INT32_MAX));
}

ViewSize SizeOf(const ClientRect& rect) {
    return ViewSize{Span(rect.left, rect.right), Span(rect.top, rect.bottom)};
}

bool InRectangle(const ClientRect& rect, const PointF& p) {
    const double x = p.x;
    const double y = p.y;
    return rect.left <= x && x <= rect.right && rect.top <= y && y <= rect.bottom;
}

bool InClientArea(const ClientRect& rect, const PointF& p) {
    const ViewSize size = SizeOf(rect);
    return InRectangle(ClientRect{0, 0, size.width, size.height}, p);
}

ClientRect SpanRectangle(const PointF& first, const PointF& second, const ClientRect& clip) {
    // Beside a coordinate that is no number the second point is the left and the upper one.
    const auto [left, right] = std::minmax(second.x, first.x);
    const auto [top, bottom] = std::minmax(second.y, first.y);
    return {std::max(TruncateToInt(left), 0), std::max(TruncateToInt(top), 0),
            std::min(TruncateToInt(right), static_cast<int>(clip.right)),
            std::min(TruncateToInt(bottom), static_cast<int>(clip.bottom))};
}

PointF ClampRelative(const PointF& anchor, const PointF& p, const ClientRect& clip) {
    const ClientRect rect = SpanRectangle(anchor, p, clip);
    return MakePoint(anchor.x <= p.x ? rect.right : rect.left, anchor.y <= p.y ? rect.bottom : rect.top);
}

void SetCorners(Points& corners, const ClientRect& rect) {
    corners.resize(CornerCount);
    corners[0] = MakePoint(rect.left, rect.top);
    corners[1] = MakePoint(rect.right, rect.top);
    corners[2] = MakePoint(rect.right, rect.bottom);
    corners[3] = MakePoint(rect.left, rect.bottom);
}

} // namespace rulecanvas
