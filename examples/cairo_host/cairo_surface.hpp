#pragma once

#include <rulecanvas/host.hpp>

#include <cairo.h>

/// Draws figures with cairo. The context stays the caller's.
class CairoSurface final : public rulecanvas::Surface {
  public:
    explicit CairoSurface(cairo_t* context);

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
    void Stroke(float width, const rulecanvas::ColorF& colour, int32_t penStyle);
    void TraceEllipse(const rulecanvas::PointF& corner1, const rulecanvas::PointF& corner2);
    void UseColour(const rulecanvas::ColorF& colour);
    void UseFont(float size);
    void WriteText(double x, double y, const rulecanvas::ColorF& colour, const char* text);

    cairo_t* context;
};
