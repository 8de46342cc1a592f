#include <rulecanvas_kit/picture_surface.hpp>

#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>
#include <cmath>

namespace rulecanvas::kit {

namespace {

constexpr int32_t Patterned = 1;
constexpr float CaptionGap = 2.0F;
/// Room round a text, so that it does not touch the line that it belongs to.
constexpr float PaddingX = 3.0F;
constexpr float PaddingY = 2.0F;
constexpr ColorF DefaultCaptionColour = {1.0F, 255.0F, 255.0F, 255.0F};

Gdiplus::Color ToGdiplus(const ColorF& colour) {
    const auto alpha = static_cast<Gdiplus::ARGB>(std::lround(AlphaOf(colour) * 255.0F));
    return Gdiplus::Color(alpha << 24U | RgbOf(colour));
}

/// Behind every text, so that it can be read on any picture.
Gdiplus::Color ShadowOf(const ColorF& colour) {
    constexpr BYTE Alpha = 170;
    constexpr float MiddleGrey = 100.0F;
    const float brightness = 0.30F * colour.red + 0.59F * colour.green + 0.11F * colour.blue;
    return brightness < MiddleGrey ? Gdiplus::Color(Alpha, 255, 255, 255) : Gdiplus::Color(Alpha, 0, 0, 0);
}

/// A style that was never given a colour is transparent black.
const ColorF& CaptionColour(const ColorF& colour) {
    return colour.alpha > 0.0F ? colour : DefaultCaptionColour;
}

float Inside(float value, float low, float high) {
    return std::max(low, std::min(value, high));
}

} // namespace

PictureSurface::PictureSurface(BackBuffer& target, FontBook& fontBook)
    : size(target.PictureSize()), canvas(target.Pixels(), size),
      bitmap(size.width, size.height, size.width * 4, PixelFormat32bppRGB, reinterpret_cast<BYTE*>(target.Pixels())),
      graphics(&bitmap), fonts(fontBook) {
    GdiFlush();
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
}

void PictureSurface::StrokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour,
                                int32_t penStyle) {
    canvas.StrokeLine(from, to, width, colour, penStyle == Patterned);
}

void PictureSurface::StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width,
                                     const ColorF& colour, int32_t penStyle) {
    canvas.StrokeRectangle(topLeft, bottomRight, width, colour, penStyle == Patterned);
}

void PictureSurface::StrokeEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& colour) {
    canvas.StrokeEllipse(corner1, corner2, width, colour);
}

void PictureSurface::PaintEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& fill,
                                  const ColorF& outline) {
    canvas.PaintEllipse(corner1, corner2, fill);
    canvas.StrokeEllipse(corner1, corner2, width, outline);
}

void PictureSurface::PaintRectangle(const PointF& topLeft, const PointF& bottomRight, const ColorF& colour) {
    if (layerOpen) {
        layer.push_back({topLeft, bottomRight, colour});
    } else {
        canvas.PaintRectangle(topLeft, bottomRight, colour);
    }
}

void PictureSurface::DrawString(const PointF& at, const TextStyle& style, const char* text) {
    DrawOutlined(ToWide(text), fonts.Find(style), Gdiplus::PointF(at.x, at.y), CaptionColour(style.colour));
}

float PictureSurface::StringWidth(const TextStyle& style, const char* text) {
    return Measure(fonts.Find(style), ToWide(text)).Width;
}

float PictureSurface::StringHeight(const TextStyle& style, const char* text) {
    return Measure(fonts.Find(style), ToWide(text)).Height;
}

/// Above the first point of the figure, or below it where there is no room, and never outside the clip.
void PictureSurface::DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                                 const ClientRect& clip) {
    if (count <= 0 || *text == '\0') {
        return;
    }
    const Gdiplus::Font& font = fonts.CaptionFont();
    const std::wstring caption = ToWide(text);
    const Gdiplus::RectF box = Measure(font, caption);
    const bool clipped = clip.right > clip.left && clip.bottom > clip.top;
    const auto left = static_cast<float>(clipped ? clip.left : 0);
    const auto top = static_cast<float>(clipped ? clip.top : 0);
    const auto right = static_cast<float>(clipped ? clip.right : size.width);
    const auto bottom = static_cast<float>(clipped ? clip.bottom : size.height);
    const float above = points[0].y - box.Height - CaptionGap;
    const float y = above >= top ? above : points[0].y + CaptionGap;
    const Gdiplus::PointF at(Inside(points[0].x, left, right - box.Width), Inside(y, top, bottom - box.Height));
    graphics.SetClip(Gdiplus::RectF(left, top, right - left, bottom - top));
    DrawOutlined(caption, font, at, CaptionColour(colour));
    graphics.ResetClip();
}

void PictureSurface::OpenLayer() {
    layerOpen = true;
    layerSize = {};
    layer.clear();
}

void PictureSurface::SizeLayer(int32_t width, int32_t height) {
    layerSize = {width, height};
}

/// Fills do not overlap each other in a layer, so they can be blended into the picture one by one.
void PictureSurface::CloseLayer(int32_t x, int32_t y) {
    const auto left = static_cast<float>(x);
    const auto top = static_cast<float>(y);
    const auto width = static_cast<float>(layerSize.width);
    const auto height = static_cast<float>(layerSize.height);
    layerOpen = false;
    for (const LayerFill& fill : layer) {
        const PointF topLeft = {left + Inside(fill.topLeft.x, 0.0F, width), top + Inside(fill.topLeft.y, 0.0F, height)};
        const PointF bottomRight = {left + Inside(fill.bottomRight.x, 0.0F, width),
                                    top + Inside(fill.bottomRight.y, 0.0F, height)};
        canvas.PaintRectangle(topLeft, bottomRight, fill.colour);
    }
    layer.clear();
}

Gdiplus::RectF PictureSurface::Measure(const Gdiplus::Font& font, const std::wstring& text) const {
    Gdiplus::RectF box;
    graphics.MeasureString(text.c_str(), static_cast<INT>(text.size()), &font, Gdiplus::PointF(0.0F, 0.0F),
                           Gdiplus::StringFormat::GenericTypographic(), &box);
    box.Inflate(PaddingX, PaddingY);
    return box;
}

void PictureSurface::DrawOutlined(const std::wstring& text, const Gdiplus::Font& font, Gdiplus::PointF at,
                                  const ColorF& colour) {
    const Gdiplus::SolidBrush shadow(ShadowOf(colour));
    const Gdiplus::SolidBrush ink(ToGdiplus(colour));
    const Gdiplus::StringFormat* const format = Gdiplus::StringFormat::GenericTypographic();
    const auto length = static_cast<INT>(text.size());
    at = at + Gdiplus::PointF(PaddingX, PaddingY);
    const Gdiplus::PointF behind(at.X + 1.0F, at.Y + 1.0F);
    graphics.DrawString(text.c_str(), length, &font, behind, format, &shadow);
    graphics.DrawString(text.c_str(), length, &font, at, format, &ink);
}

} // namespace rulecanvas::kit
