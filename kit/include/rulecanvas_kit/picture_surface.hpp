#ifndef RULECANVAS_KIT_PICTURE_SURFACE_HPP
#define RULECANVAS_KIT_PICTURE_SURFACE_HPP

#include <rulecanvas/host.hpp>

#include <rulecanvas_kit/back_buffer.hpp>
#include <rulecanvas_kit/font_book.hpp>
#include <rulecanvas_kit/soft_canvas.hpp>

#include <string>
#include <vector>

namespace rulecanvas::kit {

/// Where the library draws: pixels in memory. Strokes and fills go through SoftCanvas, texts through GDI+. One object serves
/// one paint.
class PictureSurface final : public Surface {
  public:
    /// Draws into the pixels that the buffer has now. Both must live as long as the surface.
    PictureSurface(BackBuffer& target, FontBook& fontBook);

    void StrokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour, int32_t penStyle) override;
    void StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width, const ColorF& colour,
                         int32_t penStyle) override;
    void StrokeEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& colour) override;
    void PaintEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& fill,
                      const ColorF& outline) override;
    void PaintRectangle(const PointF& topLeft, const PointF& bottomRight, const ColorF& colour) override;

    void DrawString(const PointF& at, const TextStyle& style, const char* text) override;
    float StringWidth(const TextStyle& style, const char* text) override;
    float StringHeight(const TextStyle& style, const char* text) override;
    void DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                     const ClientRect& clip) override;

    void OpenLayer() override;
    void SizeLayer(int32_t width, int32_t height) override;
    void CloseLayer(int32_t x, int32_t y) override;

  private:
    struct LayerFill {
        PointF topLeft;
        PointF bottomRight;
        ColorF colour;
    };

    Gdiplus::RectF Measure(const Gdiplus::Font& font, const std::wstring& text) const;
    void DrawOutlined(const std::wstring& text, const Gdiplus::Font& font, Gdiplus::PointF at, const ColorF& colour);

    Size size;
    SoftCanvas canvas;
    Gdiplus::Bitmap bitmap;
    Gdiplus::Graphics graphics;
    FontBook& fonts;

    bool layerOpen = false;
    Size layerSize;
    std::vector<LayerFill> layer;
};

} // namespace rulecanvas::kit

#endif
