#include "cairo_surface.hpp"

#include <algorithm>
#include <cmath>

using rulecanvas::ClientRect;
using rulecanvas::ColorF;
using rulecanvas::PointF;
using rulecanvas::TextStyle;

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr float DefaultTextSize = 14.0F;
/// Sizes below it do not mean pixels.
constexpr float SmallestTextSize = 6.0F;
constexpr double CaptionGap = 3.0;

/// An alpha above 1 is meant on a scale of 0..255.
double AlphaOf(const ColorF& colour) {
    return static_cast<double>(colour.alpha > 1.0F ? colour.alpha / 255.0F : colour.alpha);
}

} // namespace

CairoSurface::CairoSurface(cairo_t* givenContext) : context(givenContext) {}

void CairoSurface::StrokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour,
                              int32_t penStyle) {
    cairo_move_to(context, static_cast<double>(from.x), static_cast<double>(from.y));
    cairo_line_to(context, static_cast<double>(to.x), static_cast<double>(to.y));
    Stroke(width, colour, penStyle);
}

void CairoSurface::StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width, const ColorF& colour,
                                   int32_t penStyle) {
    cairo_rectangle(context, static_cast<double>(topLeft.x), static_cast<double>(topLeft.y),
                    static_cast<double>(bottomRight.x - topLeft.x), static_cast<double>(bottomRight.y - topLeft.y));
    Stroke(width, colour, penStyle);
}

void CairoSurface::StrokeEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& colour) {
    TraceEllipse(corner1, corner2);
    Stroke(width, colour, 0);
}

void CairoSurface::PaintEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& fill,
                                const ColorF& outline) {
    TraceEllipse(corner1, corner2);
    UseColour(fill);
    cairo_fill_preserve(context);
    Stroke(width, outline, 0);
}

void CairoSurface::PaintRectangle(const PointF& topLeft, const PointF& bottomRight, const ColorF& colour) {
    cairo_rectangle(context, static_cast<double>(topLeft.x), static_cast<double>(topLeft.y),
                    static_cast<double>(bottomRight.x - topLeft.x), static_cast<double>(bottomRight.y - topLeft.y));
    UseColour(colour);
    cairo_fill(context);
}

void CairoSurface::DrawString(const PointF& at, const TextStyle& style, const char* text) {
    UseFont(style.size);
    WriteText(static_cast<double>(at.x), static_cast<double>(at.y), style.colour, text);
}

float CairoSurface::StringWidth(const TextStyle& style, const char* text) {
    UseFont(style.size);
    cairo_text_extents_t extents;
    cairo_text_extents(context, text, &extents);
    return static_cast<float>(extents.x_advance);
}

float CairoSurface::StringHeight(const TextStyle& style, const char*) {
    UseFont(style.size);
    cairo_font_extents_t extents;
    cairo_font_extents(context, &extents);
    return static_cast<float>(extents.height);
}

/// Above the first point of the figure, or below it where there is no room.
void CairoSurface::DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                               const ClientRect& clip) {
    if (count <= 0 || *text == '\0') {
        return;
    }
    const TextStyle style = {colour, 0.0F, "sans-serif"};
    const double width = static_cast<double>(StringWidth(style, text));
    const double height = static_cast<double>(StringHeight(style, text));
    const auto pointY = static_cast<double>(points[0].y);
    const double above = pointY - height - CaptionGap;
    const double x =
        std::max<double>(clip.left, std::min<double>(static_cast<double>(points[0].x), clip.right - width));
    WriteText(x, above >= clip.top ? above : pointY + CaptionGap, colour, text);
}

void CairoSurface::OpenLayer() {
    cairo_push_group(context);
}

void CairoSurface::SizeLayer(int32_t width, int32_t height) {
    cairo_rectangle(context, 0, 0, width, height);
    cairo_clip(context);
}

void CairoSurface::CloseLayer(int32_t x, int32_t y) {
    cairo_pattern_t* const layer = cairo_pop_group(context);
    cairo_save(context);
    cairo_translate(context, x, y);
    cairo_set_source(context, layer);
    cairo_paint(context);
    cairo_restore(context);
    cairo_pattern_destroy(layer);
}

void CairoSurface::Stroke(float width, const ColorF& colour, int32_t penStyle) {
    constexpr double dashes[] = {6.0, 4.0};
    UseColour(colour);
    cairo_set_line_width(context, static_cast<double>(width));
    cairo_set_dash(context, dashes, penStyle == 0 ? 0 : 2, 0.0);
    cairo_stroke(context);
}

void CairoSurface::TraceEllipse(const PointF& corner1, const PointF& corner2) {
    const double radiusX = std::abs(static_cast<double>(corner2.x - corner1.x)) / 2.0;
    const double radiusY = std::abs(static_cast<double>(corner2.y - corner1.y)) / 2.0;
    if (radiusX <= 0.0 || radiusY <= 0.0) {
        return; // an empty box cannot be scaled to
    }
    cairo_save(context);
    cairo_translate(context, static_cast<double>(corner1.x + corner2.x) / 2.0,
                    static_cast<double>(corner1.y + corner2.y) / 2.0);
    cairo_scale(context, radiusX, radiusY);
    cairo_new_sub_path(context);
    cairo_arc(context, 0.0, 0.0, 1.0, 0.0, 2.0 * Pi);
    cairo_restore(context);
}

void CairoSurface::UseColour(const ColorF& colour) {
    constexpr double full = 255.0;
    cairo_set_source_rgba(context, static_cast<double>(colour.red) / full, static_cast<double>(colour.green) / full,
                          static_cast<double>(colour.blue) / full, AlphaOf(colour));
}

void CairoSurface::UseFont(float size) {
    cairo_select_font_face(context, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    cairo_set_font_size(context, static_cast<double>(size < SmallestTextSize ? DefaultTextSize : size));
}

/// With a dark edge, so that it can be read on any picture. A caption that was given no colour is transparent black.
void CairoSurface::WriteText(double x, double y, const ColorF& colour, const char* text) {
    constexpr ColorF edge = {0.7F, 0.0F, 0.0F, 0.0F};
    constexpr ColorF white = {1.0F, 255.0F, 255.0F, 255.0F};
    cairo_font_extents_t extents;
    cairo_font_extents(context, &extents);
    cairo_move_to(context, x, y + extents.ascent);
    cairo_text_path(context, text);
    UseColour(edge);
    cairo_set_line_width(context, 3.0);
    cairo_set_dash(context, nullptr, 0, 0.0);
    cairo_stroke_preserve(context);
    UseColour(colour.alpha > 0.0F ? colour : white);
    cairo_fill(context);
}
