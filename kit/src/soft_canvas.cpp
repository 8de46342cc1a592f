#include <rulecanvas_kit/soft_canvas.hpp>

#include <algorithm>
#include <cmath>

namespace rulecanvas::kit {

namespace {

constexpr float DashLength = 6.0F;
constexpr float DashPeriod = 10.0F;

uint32_t Component(float value) {
    return static_cast<uint32_t>(std::clamp(value, 0.0F, 255.0F) + 0.5F);
}

uint32_t Mixed(uint32_t below, uint32_t above, float alpha, int shift) {
    const float from = static_cast<float>((below >> shift) & 0xFFU);
    const float to = static_cast<float>((above >> shift) & 0xFFU);
    return Component(from + (to - from) * alpha) << shift;
}

float SoftEdge(float distanceInside) {
    return std::clamp(distanceInside + 0.5F, 0.0F, 1.0F);
}

/// Strokes of an odd width lie on the middles of pixels, those of an even width between pixels: both are sharp then.
PointF Aligned(PointF point, float width) {
    const float shift = std::lround(width) % 2 != 0 ? 0.5F : 0.0F;
    return {point.x + shift, point.y + shift};
}

/// A straight segment: distance of a point from it, and how far along it the nearest place is.
class Segment {
  public:
    Segment(PointF start, PointF end) : from(start), x(end.x - start.x), y(end.y - start.y), length(std::hypot(x, y)) {}

    float Along(PointF p) const {
        if (length <= 0.0F) {
            return 0.0F;
        }
        const float projected = ((p.x - from.x) * x + (p.y - from.y) * y) / length;
        return std::clamp(projected, 0.0F, length);
    }
    float Distance(PointF p) const {
        const float part = length > 0.0F ? Along(p) / length : 0.0F;
        return std::hypot(p.x - from.x - x * part, p.y - from.y - y * part);
    }

  private:
    PointF from;
    float x;
    float y;
    float length;
};

/// Distances from the ellipse in a box, negative inside; exact on the outline and near enough beside it.
class EllipseOutline {
  public:
    EllipseOutline(PointF corner1, PointF corner2)
        : centre{(corner1.x + corner2.x) / 2.0F, (corner1.y + corner2.y) / 2.0F},
          radiusX(std::max(std::fabs(corner2.x - corner1.x) / 2.0F, 0.01F)),
          radiusY(std::max(std::fabs(corner2.y - corner1.y) / 2.0F, 0.01F)) {}

    float Distance(PointF p) const {
        const float x = (p.x - centre.x) / radiusX;
        const float y = (p.y - centre.y) / radiusY;
        const float level = std::hypot(x, y);
        const float slope = std::hypot(x / radiusX, y / radiusY);
        if (slope <= 0.0F) {
            return -std::min(radiusX, radiusY);
        }
        return (level - 1.0F) * level / slope;
    }

  private:
    PointF centre;
    float radiusX;
    float radiusY;
};

/// A coordinate may be anything, no number included.
int PixelAt(float coordinate, int limit) {
    if (!(coordinate > 0.0F)) {
        return 0;
    }
    return coordinate < static_cast<float>(limit) ? static_cast<int>(coordinate) : limit;
}

} // namespace

float AlphaOf(const ColorF& colour) {
    return std::clamp(colour.alpha > 1.0F ? colour.alpha / 255.0F : colour.alpha, 0.0F, 1.0F);
}

uint32_t RgbOf(const ColorF& colour) {
    return Component(colour.red) << 16U | Component(colour.green) << 8U | Component(colour.blue);
}

void SoftCanvas::Blend(int x, int y, uint32_t rgb, float alpha) {
    if (x < 0 || y < 0 || x >= size.width || y >= size.height) {
        return;
    }
    uint32_t& pixel = pixels[static_cast<size_t>(y) * static_cast<size_t>(size.width) + static_cast<size_t>(x)];
    pixel = Mixed(pixel, rgb, alpha, 16) | Mixed(pixel, rgb, alpha, 8) | Mixed(pixel, rgb, alpha, 0);
}

/// Blends the colour into each pixel of the box, widened by `margin`, as far as coverage(centre of the pixel) says.
template <class Coverage>
void SoftCanvas::Paint(PointF corner1, PointF corner2, float margin, const ColorF& colour, Coverage coverage) {
    const int left = PixelAt(std::min(corner1.x, corner2.x) - margin, size.width);
    const int right = PixelAt(std::max(corner1.x, corner2.x) + margin + 1.0F, size.width);
    const int top = PixelAt(std::min(corner1.y, corner2.y) - margin, size.height);
    const int bottom = PixelAt(std::max(corner1.y, corner2.y) + margin + 1.0F, size.height);
    const uint32_t rgb = RgbOf(colour);
    const float alpha = AlphaOf(colour);
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const float covered = coverage(PointF{static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F});
            if (covered > 0.0F) {
                Blend(x, y, rgb, covered * alpha);
            }
        }
    }
}

void SoftCanvas::StrokeLine(PointF from, PointF to, float width, const ColorF& colour, bool patterned) {
    const float half = std::max(width, 1.0F) / 2.0F;
    const PointF start = Aligned(from, width);
    const PointF end = Aligned(to, width);
    const Segment segment(start, end);
    Paint(start, end, half + 1.0F, colour, [&](PointF p) {
        if (patterned && std::fmod(segment.Along(p), DashPeriod) > DashLength) {
            return 0.0F;
        }
        return SoftEdge(half - segment.Distance(p));
    });
}

void SoftCanvas::StrokeRectangle(PointF corner1, PointF corner2, float width, const ColorF& colour, bool patterned) {
    const PointF corner3 = {corner2.x, corner1.y};
    const PointF corner4 = {corner1.x, corner2.y};
    StrokeLine(corner1, corner3, width, colour, patterned);
    StrokeLine(corner3, corner2, width, colour, patterned);
    StrokeLine(corner2, corner4, width, colour, patterned);
    StrokeLine(corner4, corner1, width, colour, patterned);
}

void SoftCanvas::StrokeEllipse(PointF corner1, PointF corner2, float width, const ColorF& colour) {
    const float half = std::max(width, 1.0F) / 2.0F;
    const PointF start = Aligned(corner1, width);
    const PointF end = Aligned(corner2, width);
    const EllipseOutline outline(start, end);
    Paint(start, end, half + 1.0F, colour, [&](PointF p) { return SoftEdge(half - std::fabs(outline.Distance(p))); });
}

void SoftCanvas::PaintEllipse(PointF corner1, PointF corner2, const ColorF& colour) {
    const EllipseOutline outline(corner1, corner2);
    Paint(corner1, corner2, 1.0F, colour, [&](PointF p) { return SoftEdge(-outline.Distance(p)); });
}

void SoftCanvas::PaintRectangle(PointF corner1, PointF corner2, const ColorF& colour) {
    const float left = std::min(corner1.x, corner2.x);
    const float right = std::max(corner1.x, corner2.x);
    const float top = std::min(corner1.y, corner2.y);
    const float bottom = std::max(corner1.y, corner2.y);
    Paint(corner1, corner2, 1.0F, colour, [&](PointF p) {
        const float across = std::min(p.x - left, right - p.x);
        const float down = std::min(p.y - top, bottom - p.y);
        return SoftEdge(std::min(across, down));
    });
}

} // namespace rulecanvas::kit
