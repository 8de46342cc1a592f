#pragma once

#include "rulecanvas/rulecanvas.h"

#include <array>
#include <cstddef>
#include <vector>

namespace rulecanvas {

using Points = std::vector<PointF>;

/// Points that someone else keeps, for the length of a call.
class PointSpan {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): a list of points is a span of them
    PointSpan(const Points& points) : first(points.data()), count(points.size()) {}
    template <size_t length>
    // NOLINTNEXTLINE(google-explicit-constructor)
    PointSpan(const std::array<PointF, length>& points) : first(points.data()), count(length) {}

    const PointF* begin() const { return first; }
    const PointF* end() const { return first + count; }

  private:
    const PointF* first;
    size_t count;
};

/// Width and height of a view's client area in pixels; 0 or less while unknown.
struct ViewSize {
    int width = 0;
    int height = 0;

    bool Known() const { return width > 0 && height > 0; }
};

inline bool operator==(const PointF& a, const PointF& b) {
    return a.x == b.x && a.y == b.y;
}

inline bool operator!=(const PointF& a, const PointF& b) {
    return !(a == b);
}

/// Toward zero, saturating; NaN gives 0. The only way from a floating-point number to an integer.
int TruncateToInt(double value);

PointF WholePixels(const PointF& point);

/// The points in whole pixels, as some shapes round before they write.
Points Truncated(Points points);

/// Both differences are below `limit`; since that is whole, truncating them first would not matter.
bool CloserThan(int limit, const PointF& a, const PointF& b);

PointF Shifted(const PointF& point, float dx, float dy);

/// Moves every point by (dx, dy).
void Shift(Points& points, float dx, float dy);

/// Whether a shift by (dx, dy) moves every point without rounding, so that all differences between them stay as they
/// are.
bool ShiftsExactly(const Points& points, float dx, float dy);

} // namespace rulecanvas
