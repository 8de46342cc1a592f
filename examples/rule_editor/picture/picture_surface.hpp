#pragma once

#include <rulecanvas/host.hpp>

#include "picture/canvas.hpp"
#include "picture/font_book.hpp"

#include <string>
#include <vector>

namespace rule_editor {

/* Where the library draws: pixels in memory. Strokes and fills go through Canvas, texts through GDI+. One object serves
 * one paint. */
class PictureSurface final : public rulecanvas::Surface {
  public:
    /* Pixels and fonts must live as long as the surface. */
    PictureSurface(uint32_t* pixels, Size size, FontBook& fonts);

    void StrokeLine(const rulecanvas::PointF& from, const rulecanvas::PointF& to, float width,
                    const rulecanvas::ColorF& colour, int32_t penStyle) override;
    void StrokeRectangle(const rulecanvas::PointF& topLeft, const rulecanvas::PointF& bottomRight, float width,
                         const rulecanvas::ColorF& colour, int32_t penStyle) override;
    void StrokeEllipse(const rulecanvas::PointF& corner1, const rulecanvas::PointF& corner2, float width,
                       const rulecanvas::ColorF& colour) override;
    void PaintEllipse(const rulecanvas::PointF& corner1, const rulecanvas::PointF& corner2, float width,
                      const rulecanvas::ColorF& fill, const rulecanvas::ColorF& outline) override;
    void PaintRectangle(const rulecanvas::PointF& topLeft, const rulecanvas::PointF& bottomRight,
                        const rulecanvas::ColorF& colour) override;

    void DrawString(const rulecanvas::PointF& at, const rulecanvas::TextStyle& style, const char* text) override;
    float StringWidth(const rulecanvas::TextStyle& style, const char* text) override;
    float StringHeight(const rulecanvas::TextStyle& style, const char* text) override;
    void DrawCaption(const char* text, const rulecanvas::PointF* points, int32_t count,
                     const rulecanvas::ColorF& colour, const rulecanvas::ClientRect& clip) override;

    void OpenLayer() override;
    void SizeLayer(int32_t width, int32_t height) override;
    void CloseLayer(int32_t x, int32_t y) override;

  private:
    struct LayerFill {
        rulecanvas::PointF topLeft;
        rulecanvas::PointF bottomRight;
        rulecanvas::ColorF colour;
    };

    Gdiplus::RectF measure(const Gdiplus::Font& font, const std::wstring& text) const;
    void drawOutlined(const std::wstring& text, const Gdiplus::Font& font, Gdiplus::PointF at,
                      const rulecanvas::ColorF& colour);

    Size m_size;
    Canvas m_canvas;
    Gdiplus::Bitmap m_bitmap;
    Gdiplus::Graphics m_graphics;
    FontBook& m_fonts;

    bool m_layerOpen = false;
    Size m_layerSize;
    std::vector<LayerFill> m_layer;
};

} // namespace rule_editor
