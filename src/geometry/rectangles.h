#pragma once

#include "geometry/points.h"

namespace rulecanvas {

/// Difference of two coordinates, saturating.
int Span(int from, int to);

/// For a limit: none.
constexpr ClientRect NoLimit{-1, -1, -1, -1};

ViewSize SizeOf(const ClientRect& rect);

/// All four borders included.
bool InRectangle(const ClientRect& rect, const PointF& p);

/// In (0, 0) to the width and height of the client rectangle, wherever that lies; the borders included.
bool InClientArea(const ClientRect& rect, const PointF& p);

/// The rectangle of two points in whole pixels, clamped to zero at the left and top (not to the clip's own left and
/// top: every view starts at its origin) and to the clip at the right and bottom.
ClientRect SpanRectangle(const PointF& first, const PointF& second, const ClientRect& clip);

/// `p` in whole pixels, kept inside the view as seen from `anchor`.
PointF ClampRelative(const PointF& anchor, const PointF& p, const ClientRect& clip);

constexpr size_t CornerCount = 4;

/// Makes `corners` the corners of the rectangle: top left, top right, bottom right, bottom left.
void SetCorners(Points& corners, const ClientRect& rect);

} // namespace rulecanvas
