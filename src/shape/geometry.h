#pragma once

#include "shape/types.h"

namespace rulecanvas {

/// Toward zero, saturating; NaN gives 0. The only way from a floating-point number to an integer.
int TruncateToInt(double value);

PointF WholePixels(const PointF& point);

/// Difference of two coordinates, saturating.
int Span(int from, int to);

ViewSize SizeOf(const ClientRect& rect);

bool NearPoint(const PointF& p, const PointF& q);

/// Index of the first point near `p`, or -1.
int VertexIndex(const Points& points, const PointF& p);

bool NearSegment(const PointF& a, const PointF& b, const PointF& p);

/// Near any edge of the open path.
bool OnPath(const Points& path, const PointF& p);

/// Near a vertex or any edge of the closed ring.
bool OnRing(const Points& ring, const PointF& p);

/// Positive, zero or negative: the side of the line from `a` to `b` on which `p` lies.
int SideOfLine(const PointF& a, const PointF& b, const PointF& p);

/// Non-zero winding number over the closed ring.
bool InPolygon(const Points& ring, const PointF& p);

/// All four borders included.
bool InRectangle(const ClientRect& rect, const PointF& p);

/// Where the first of two points lies in the rectangle they span.
enum class Corner { TopLeft = 0, TopRight = 1, BottomRight = 2, BottomLeft = 3 };

struct SpannedRectangle {
    ClientRect rect;
    Corner firstPoint;
};

/// The rectangle of two points in whole pixels, clamped to zero at the left and top (not to the clip's own left and
/// top: every view starts at its origin) and to the clip at the right and bottom.
SpannedRectangle SpanRectangle(const PointF& first, const PointF& second, const ClientRect& clip);

/// `p` in whole pixels, kept inside the view as seen from `anchor`.
PointF ClampRelative(const PointF& anchor, const PointF& p, const ClientRect& clip);

/// Top left, top right, bottom right, bottom left.
Points CornersOf(const ClientRect& rect);

/// The points moved by (dx, dy).
Points Moved(const Points& points, float dx, float dy);

/// Both differences are below `limit`; since that is whole, truncating them first would not matter.
bool CloserThan(int limit, const PointF& a, const PointF& b);

/// The two ends of an arrow's barbs at the tip `b` of the shaft from `a`.
struct ArrowBarbs {
    PointF first;
    PointF second;
};

/// Arrow heads and direction arrows round pi differently. Both roundings are part of how figures look, to the last bit,
/// and are not to be unified.
double ArrowHeadHalfAngle();
double DirectionArrowHalfAngle();

ArrowBarbs BarbsOf(PointF a, const PointF& b, double halfAngle);

/// Ends of the stroke that crosses the segment at its middle: `upper` lies above (left of a vertical segment).
struct CrossStroke {
    PointF upper;
    PointF lower;
};

CrossStroke DirectionMarkOf(const PointF& a, const PointF& b);

} // namespace rulecanvas
