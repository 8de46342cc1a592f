#include "geometry/rectangles.h"

#include <algorithm>

namespace rulecanvas {
namespace {

PointF MakePoint(int x, int y) {
    return PointF{static_cast<float>(x), static_cast<float>(y)};
}

} // namespace

int Span(int from, int to) {
    return TruncateToInt(static_cast<double>(to) - from);
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

void SetCorners(Points& corners, const ClientRect& rect) {
    corners.resize(CornerCount);
    corners[0] = MakePoint(rect.left, rect.top);
    corners[1] = MakePoint(rect.right, rect.top);
    corners[2] = MakePoint(rect.right, rect.bottom);
    corners[3] = MakePoint(rect.left, rect.bottom);
}

} // namespace rulecanvas
