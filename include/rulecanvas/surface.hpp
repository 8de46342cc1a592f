/// A drawing surface to derive from.
#ifndef RULECANVAS_SURFACE_HPP
#define RULECANVAS_SURFACE_HPP

#include <rulecanvas/method.hpp>

/// <windows.h> renames these operations of the interface.
#pragma push_macro("DrawText")
#pragma push_macro("DrawTextEx")
#undef DrawText
#undef DrawTextEx

namespace rulecanvas {

/// Derive from it and implement what the host can draw; every operation does nothing by default. Coordinates are pixels
/// of the view that is painted, y downwards. Texts and pointers are valid during the call. `penStyle` 0 is a solid pen,
/// 1 a patterned one. All operations run on the thread that called Container::Paint, inside that call, and must not
/// throw (an exception that leaves one ends the program). A surface may be made for one paint or kept for many.
class Surface : public IContainerGraphics {
  public:
    virtual ~Surface() = default;

    /// Stroke a straight segment, `width` pixels wide.
    virtual void StrokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour, int32_t penStyle) {
        (void)from, (void)to, (void)width, (void)colour, (void)penStyle;
    }
    /// Stroke an axis-parallel rectangle.
    virtual void StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width, const ColorF& colour,
                                 int32_t penStyle) {
        (void)topLeft, (void)bottomRight, (void)width, (void)colour, (void)penStyle;
    }
    /// Stroke the ellipse inscribed in the box that two opposite corners span.
    virtual void StrokeEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& colour) {
        (void)corner1, (void)corner2, (void)width, (void)colour;
    }
    /// Fill that ellipse and stroke its outline.
    virtual void PaintEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& fill,
                              const ColorF& outline) {
        (void)corner1, (void)corner2, (void)width, (void)fill, (void)outline;
    }
    /// Fill an axis-parallel rectangle; between OpenLayer and CloseLayer in coordinates of the layer. An alpha above 1 is
    /// meant on a scale of 0..255.
    virtual void PaintRectangle(const PointF& topLeft, const PointF& bottomRight, const ColorF& colour) {
        (void)topLeft, (void)bottomRight, (void)colour;
    }

    /// Draw a text with its top left at the point. The size is the figure's own or, of a pixel counter, the "FontSize"
    /// of its style; sizes below 6, negative ones included, stand for the host's own default size.
    virtual void DrawString(const PointF& at, const TextStyle& style, const char* text) {
        (void)at, (void)style, (void)text;
    }
    /// Width and height in pixels that DrawString would take; 0 keeps centring and fitting of texts out of play.
    virtual float StringWidth(const TextStyle& style, const char* text) {
        (void)style, (void)text;
        return 0.0F;
    }
    virtual float StringHeight(const TextStyle& style, const char* text) {
        (void)style, (void)text;
        return 0.0F;
    }
    /// Draw the caption of a figure near its `count` points, inside `clip`. `points` may be null when `count` is 0.
    virtual void DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                             const ClientRect& clip) {
        (void)text, (void)points, (void)count, (void)colour, (void)clip;
    }

    /// A layer of its own: OpenLayer, SizeLayer, any PaintRectangle, then CloseLayer blends it into the picture with its
    /// top left at (x, y). Sizes are pixels and may be 0.
    virtual void OpenLayer() {}
    virtual void SizeLayer(int32_t width, int32_t height) { (void)width, (void)height; }
    virtual void CloseLayer(int32_t x, int32_t y) { (void)x, (void)y; }

    /// What the library calls.
    void DrawLine(const PointF* from, const PointF* to, float width, const ColorF* colour,
                  int32_t penStyle) noexcept final {
        StrokeLine(*from, *to, width, *colour, penStyle);
    }
    void DrawText(const PointF* at, const TextStyle* style, const char* text, int32_t, int32_t) noexcept final {
        DrawString(*at, *style, text);
    }
    void DrawTextEx(const PointF* at, const TextStyle* style, const char* text) noexcept final {
        DrawString(*at, *style, text);
    }
    void FillEllipse(const PointF* corner1, const PointF* corner2, float width, ColorF fill,
                     const ColorF* outline) noexcept final {
        PaintEllipse(*corner1, *corner2, width, fill, *outline);
    }
    void DrawEllipse(const PointF* corner1, const PointF* corner2, float width, const ColorF* colour) noexcept final {
        StrokeEllipse(*corner1, *corner2, width, *colour);
    }
    void DrawRectangle(const PointF* topLeft, const PointF* bottomRight, float width, const ColorF* colour,
                       int32_t penStyle) noexcept final {
        StrokeRectangle(*topLeft, *bottomRight, width, *colour, penStyle);
    }
    float MeasureText(TextStyle style, const char* text) noexcept final { return StringWidth(style, text); }
    float MeasureTextHeight(TextStyle style, const char* text) noexcept final { return StringHeight(style, text); }
    void DrawTextAtPoints(const char* text, const PointF* points, int32_t count, ColorF colour, int32_t,
                          ClientRect clip, int32_t) noexcept final {
        DrawCaption(text, points, count, colour, clip);
    }
    void BeginLayer() noexcept final { OpenLayer(); }
    void EndLayer(int32_t x, int32_t y) noexcept final { CloseLayer(x, y); }
    void SetLayerSize(int32_t width, int32_t height) noexcept final { SizeLayer(width, height); }
    void FillRectangle(const PointF* topLeft, const PointF* bottomRight, const ColorF* colour) noexcept final {
        PaintRectangle(*topLeft, *bottomRight, *colour);
    }
};

} // namespace rulecanvas

#pragma pop_macro("DrawTextEx")
#pragma pop_macro("DrawText")

#endif
