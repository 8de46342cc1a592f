#ifndef RULECANVAS_KIT_SOFT_CANVAS_HPP
#define RULECANVAS_KIT_SOFT_CANVAS_HPP

#include <rulecanvas/host.hpp>

#include <rulecanvas_kit/rule.hpp>

namespace rulecanvas::kit {

/// Strokes and fills with soft edges on pixels in memory. GDI+ smooths strokes on some systems only; here every system
/// gives the same picture, which also makes pictures comparable.
/// An outline is described by the distance of a pixel's centre from it; the distance tells how much of the pixel the
/// stroke covers. Colours and pen styles are as the library passes them.
class SoftCanvas {
  public:
    /// `pixels` stay the caller's: rows from the top, 0x00RRGGBB.
    SoftCanvas(uint32_t* givenPixels, Size givenSize) : pixels(givenPixels), size(givenSize) {}

    void StrokeLine(PointF from, PointF to, float width, const ColorF& colour, bool patterned);
    void StrokeRectangle(PointF corner1, PointF corner2, float width, const ColorF& colour, bool patterned);
    void StrokeEllipse(PointF corner1, PointF corner2, float width, const ColorF& colour);
    void PaintEllipse(PointF corner1, PointF corner2, const ColorF& colour);
    void PaintRectangle(PointF corner1, PointF corner2, const ColorF& colour);

    /// One pixel; outside is ignored. `alpha` 0..1.
    void Blend(int x, int y, uint32_t rgb, float alpha);

  private:
    template <class Coverage>
    void Paint(PointF corner1, PointF corner2, float margin, const ColorF& colour, Coverage coverage);

    uint32_t* pixels;
    Size size;
};

/// Alpha 0..1 of a colour whose alpha may also be on a scale of 0..255.
float AlphaOf(const ColorF& colour);
uint32_t RgbOf(const ColorF& colour);

} // namespace rulecanvas::kit

#endif
