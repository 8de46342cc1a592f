#include "picture/picture_surface.hpp"

#include "unicode.hpp"

#include <algorithm>
#include <cmath>

namespace rule_editor {

using rulecanvas::ClientRect;
using rulecanvas::ColorF;
using rulecanvas::PointF;
using rulecanvas::TextStyle;

namespace {

constexpr int32_t PATTERNED = 1;
constexpr float CAPTION_GAP = 2.0F;
/* Room round a text, so that it does not touch the line that it belongs to. */
constexpr float PADDING_X = 3.0F;
constexpr float PADDING_Y = 2.0F;
constexpr ColorF DEFAULT_CAPTION_COLOUR = {1.0F, 255.0F, 255.0F, 255.0F};

Gdiplus::Color toGdiplus(const ColorF& colour) {
    const auto alpha = static_cast<Gdiplus::ARGB>(std::lround(alphaOf(colour) * 255.0F));
    return Gdiplus::Color(alpha << 24U | rgbOf(colour));
}

/* Behind every text, so that it can be read on any picture. */
Gdiplus::Color shadowOf(const ColorF& colour) {
    constexpr BYTE ALPHA = 170;
    constexpr float MIDDLE_GREY = 100.0F;
    const float brightness = 0.30F * colour.red + 0.59F * colour.green + 0.11F * colour.blue;
    return brightness < MIDDLE_GREY ? Gdiplus::Color(ALPHA, 255, 255, 255) : Gdiplus::Color(ALPHA, 0, 0, 0);
}

/* A style that was never given a colour is transparent black. */
const ColorF& captionColour(const ColorF& colour) {
    return colour.alpha > 0.0F ? colour : DEFAULT_CAPTION_COLOUR;
}

float inside(float value, float low, float high) {
    return std::max(low, std::min(value, high));
}

} // namespace

PictureSurface::PictureSurface(uint32_t* pixels, Size size, FontBook& fonts)
    : m_size(size), m_canvas(pixels, size),
      m_bitmap(size.width, size.height, size.width * 4, PixelFormat32bppRGB, reinterpret_cast<BYTE*>(pixels)),
      m_graphics(&m_bitmap), m_fonts(fonts) {
    m_graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
}

void PictureSurface::StrokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour,
                                int32_t penStyle) {
    m_canvas.StrokeLine(from, to, width, colour, penStyle == PATTERNED);
}

void PictureSurface::StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width,
                                     const ColorF& colour, int32_t penStyle) {
    m_canvas.StrokeRectangle(topLeft, bottomRight, width, colour, penStyle == PATTERNED);
}

void PictureSurface::StrokeEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& colour) {
    m_canvas.StrokeEllipse(corner1, corner2, width, colour);
}

void PictureSurface::PaintEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& fill,
                                  const ColorF& outline) {
    m_canvas.PaintEllipse(corner1, corner2, fill);
    m_canvas.StrokeEllipse(corner1, corner2, width, outline);
}

void PictureSurface::PaintRectangle(const PointF& topLeft, const PointF& bottomRight, const ColorF& colour) {
    if (m_layerOpen) {
        m_layer.push_back({topLeft, bottomRight, colour});
    } else {
        m_canvas.PaintRectangle(topLeft, bottomRight, colour);
    }
}

void PictureSurface::DrawString(const PointF& at, const TextStyle& style, const char* text) {
    drawOutlined(toWide(text), m_fonts.find(style), Gdiplus::PointF(at.x, at.y), captionColour(style.colour));
}

float PictureSurface::StringWidth(const TextStyle& style, const char* text) {
    return measure(m_fonts.find(style), toWide(text)).Width;
}

float PictureSurface::StringHeight(const TextStyle& style, const char* text) {
    return measure(m_fonts.find(style), toWide(text)).Height;
}

/* Above the first point of the figure, or below it where there is no room, and never outside the clip. */
void PictureSurface::DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                                 const ClientRect& clip) {
    if (count <= 0 || *text == '\0') {
        return;
    }
    const Gdiplus::Font& font = m_fonts.captionFont();
    const std::wstring caption = toWide(text);
    const Gdiplus::RectF box = measure(font, caption);
    const bool clipped = clip.right > clip.left && clip.bottom > clip.top;
    const auto left = static_cast<float>(clipped ? clip.left : 0);
    const auto top = static_cast<float>(clipped ? clip.top : 0);
    const auto right = static_cast<float>(clipped ? clip.right : m_size.width);
    const auto bottom = static_cast<float>(clipped ? clip.bottom : m_size.height);
    const float above = points[0].y - box.Height - CAPTION_GAP;
    const float y = above >= top ? above : points[0].y + CAPTION_GAP;
    const Gdiplus::PointF at(inside(points[0].x, left, right - box.Width), inside(y, top, bottom - box.Height));
    m_graphics.SetClip(Gdiplus::RectF(left, top, right - left, bottom - top));
    drawOutlined(caption, font, at, captionColour(colour));
    m_graphics.ResetClip();
}

void PictureSurface::OpenLayer() {
    m_layerOpen = true;
    m_layerSize = {};
    m_layer.clear();
}

void PictureSurface::SizeLayer(int32_t width, int32_t height) {
    m_layerSize = {width, height};
}

/* Fills do not overlap each other in a layer, so they can be blended into the picture one by one. */
void PictureSurface::CloseLayer(int32_t x, int32_t y) {
    const auto left = static_cast<float>(x);
    const auto top = static_cast<float>(y);
    const auto width = static_cast<float>(m_layerSize.width);
    const auto height = static_cast<float>(m_layerSize.height);
    m_layerOpen = false;
    for (const LayerFill& fill : m_layer) {
        const PointF topLeft = {left + inside(fill.topLeft.x, 0.0F, width), top + inside(fill.topLeft.y, 0.0F, height)};
        const PointF bottomRight = {left + inside(fill.bottomRight.x, 0.0F, width),
                                    top + inside(fill.bottomRight.y, 0.0F, height)};
        m_canvas.PaintRectangle(topLeft, bottomRight, fill.colour);
    }
    m_layer.clear();
}

Gdiplus::RectF PictureSurface::measure(const Gdiplus::Font& font, const std::wstring& text) const {
    Gdiplus::RectF box;
    m_graphics.MeasureString(text.c_str(), static_cast<INT>(text.size()), &font, Gdiplus::PointF(0.0F, 0.0F),
                             Gdiplus::StringFormat::GenericTypographic(), &box);
    box.Inflate(PADDING_X, PADDING_Y);
    return box;
}

void PictureSurface::drawOutlined(const std::wstring& text, const Gdiplus::Font& font, Gdiplus::PointF at,
                                  const ColorF& colour) {
    const Gdiplus::SolidBrush shadow(shadowOf(colour));
    const Gdiplus::SolidBrush ink(toGdiplus(colour));
    const Gdiplus::StringFormat* const format = Gdiplus::StringFormat::GenericTypographic();
    const auto length = static_cast<INT>(text.size());
    at = at + Gdiplus::PointF(PADDING_X, PADDING_Y);
    const Gdiplus::PointF behind(at.X + 1.0F, at.Y + 1.0F);
    m_graphics.DrawString(text.c_str(), length, &font, behind, format, &shadow);
    m_graphics.DrawString(text.c_str(), length, &font, at, format, &ink);
}

} // namespace rule_editor
