#include "picture/canvas.hpp"

#include <algorithm>
#include <cmath>

namespace rule_editor {

using rulecanvas::ColorF;
using rulecanvas::PointF;

namespace {

constexpr float DASH_LENGTH = 6.0F;
constexpr float DASH_PERIOD = 10.0F;

uint32_t component(float value) {
    return static_cast<uint32_t>(std::clamp(value, 0.0F, 255.0F) + 0.5F);
}

uint32_t mixed(uint32_t below, uint32_t above, float alpha, int shift) {
    const float from = static_cast<float>((below >> shift) & 0xFFU);
    const float to = static_cast<float>((above >> shift) & 0xFFU);
    return component(from + (to - from) * alpha) << shift;
}

float softEdge(float distanceInside) {
    return std::clamp(distanceInside + 0.5F, 0.0F, 1.0F);
}

/* Strokes of an odd width lie on the middles of pixels, those of an even width between pixels: both are sharp then. */
PointF aligned(PointF point, float width) {
    const float shift = std::lround(width) % 2 != 0 ? 0.5F : 0.0F;
    return {point.x + shift, point.y + shift};
}

/* A straight segment: distance of a point from it, and how far along it the nearest place is. */
class Segment {
  public:
    Segment(PointF from, PointF to)
        : m_from(from), m_x(to.x - from.x), m_y(to.y - from.y), m_length(std::hypot(m_x, m_y)) {}

    float along(PointF p) const {
        if (m_length <= 0.0F) {
            return 0.0F;
        }
        const float projected = ((p.x - m_from.x) * m_x + (p.y - m_from.y) * m_y) / m_length;
        return std::clamp(projected, 0.0F, m_length);
    }
    float distance(PointF p) const {
        const float part = m_length > 0.0F ? along(p) / m_length : 0.0F;
        return std::hypot(p.x - m_from.x - m_x * part, p.y - m_from.y - m_y * part);
    }

  private:
    PointF m_from;
    float m_x;
    float m_y;
    float m_length;
};

/* Distances from the ellipse in a box, negative inside; exact on the outline and near enough beside it. */
class EllipseOutline {
  public:
    EllipseOutline(PointF corner1, PointF corner2)
        : m_centre{(corner1.x + corner2.x) / 2.0F, (corner1.y + corner2.y) / 2.0F},
          m_radiusX(std::max(std::fabs(corner2.x - corner1.x) / 2.0F, 0.01F)),
          m_radiusY(std::max(std::fabs(corner2.y - corner1.y) / 2.0F, 0.01F)) {}

    float distance(PointF p) const {
        const float x = (p.x - m_centre.x) / m_radiusX;
        const float y = (p.y - m_centre.y) / m_radiusY;
        const float level = std::hypot(x, y);
        const float slope = std::hypot(x / m_radiusX, y / m_radiusY);
        if (slope <= 0.0F) {
            return -std::min(m_radiusX, m_radiusY);
        }
        return (level - 1.0F) * level / slope;
    }

  private:
    PointF m_centre;
    float m_radiusX;
    float m_radiusY;
};

/* A coordinate may be anything, no number included. */
int pixelAt(float coordinate, int limit) {
    if (!(coordinate > 0.0F)) {
        return 0;
    }
    return coordinate < static_cast<float>(limit) ? static_cast<int>(coordinate) : limit;
}

} // namespace

float alphaOf(const ColorF& colour) {
    return std::clamp(colour.alpha > 1.0F ? colour.alpha / 255.0F : colour.alpha, 0.0F, 1.0F);
}

uint32_t rgbOf(const ColorF& colour) {
    return component(colour.red) << 16U | component(colour.green) << 8U | component(colour.blue);
}

void Canvas::blend(int x, int y, uint32_t rgb, float alpha) {
    if (x < 0 || y < 0 || x >= m_size.width || y >= m_size.height) {
        return;
    }
    uint32_t& pixel = m_pixels[static_cast<size_t>(y) * static_cast<size_t>(m_size.width) + static_cast<size_t>(x)];
    pixel = mixed(pixel, rgb, alpha, 16) | mixed(pixel, rgb, alpha, 8) | mixed(pixel, rgb, alpha, 0);
}

/* Blends the colour into each pixel of the box, widened by `margin`, as far as coverage(centre of the pixel) says. */
template <class Coverage>
void Canvas::Paint(PointF corner1, PointF corner2, float margin, const ColorF& colour, Coverage coverage) {
    const int left = pixelAt(std::min(corner1.x, corner2.x) - margin, m_size.width);
    const int right = pixelAt(std::max(corner1.x, corner2.x) + margin + 1.0F, m_size.width);
    const int top = pixelAt(std::min(corner1.y, corner2.y) - margin, m_size.height);
    const int bottom = pixelAt(std::max(corner1.y, corner2.y) + margin + 1.0F, m_size.height);
    const uint32_t rgb = rgbOf(colour);
    const float alpha = alphaOf(colour);
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const float covered = coverage(PointF{static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F});
            if (covered > 0.0F) {
                blend(x, y, rgb, covered * alpha);
            }
        }
    }
}

void Canvas::StrokeLine(PointF from, PointF to, float width, const ColorF& colour, bool patterned) {
    const float half = std::max(width, 1.0F) / 2.0F;
    const PointF start = aligned(from, width);
    const PointF end = aligned(to, width);
    const Segment segment(start, end);
    Paint(start, end, half + 1.0F, colour, [&](PointF p) {
        if (patterned && std::fmod(segment.along(p), DASH_PERIOD) > DASH_LENGTH) {
            return 0.0F;
        }
        return softEdge(half - segment.distance(p));
    });
}

void Canvas::StrokeRectangle(PointF corner1, PointF corner2, float width, const ColorF& colour, bool patterned) {
    const PointF corner3 = {corner2.x, corner1.y};
    const PointF corner4 = {corner1.x, corner2.y};
    StrokeLine(corner1, corner3, width, colour, patterned);
    StrokeLine(corner3, corner2, width, colour, patterned);
    StrokeLine(corner2, corner4, width, colour, patterned);
    StrokeLine(corner4, corner1, width, colour, patterned);
}

void Canvas::StrokeEllipse(PointF corner1, PointF corner2, float width, const ColorF& colour) {
    const float half = std::max(width, 1.0F) / 2.0F;
    const PointF start = aligned(corner1, width);
    const PointF end = aligned(corner2, width);
    const EllipseOutline outline(start, end);
    Paint(start, end, half + 1.0F, colour, [&](PointF p) { return softEdge(half - std::fabs(outline.distance(p))); });
}

void Canvas::PaintEllipse(PointF corner1, PointF corner2, const ColorF& colour) {
    const EllipseOutline outline(corner1, corner2);
    Paint(corner1, corner2, 1.0F, colour, [&](PointF p) { return softEdge(-outline.distance(p)); });
}

void Canvas::PaintRectangle(PointF corner1, PointF corner2, const ColorF& colour) {
    const float left = std::min(corner1.x, corner2.x);
    const float right = std::max(corner1.x, corner2.x);
    const float top = std::min(corner1.y, corner2.y);
    const float bottom = std::max(corner1.y, corner2.y);
    Paint(corner1, corner2, 1.0F, colour, [&](PointF p) {
        const float across = std::min(p.x - left, right - p.x);
        const float down = std::min(p.y - top, bottom - p.y);
        return softEdge(std::min(across, down));
    });
}

} // namespace rule_editor
