#pragma once

#include <rulecanvas/host.hpp>

#include "picture/frame.hpp"

namespace rule_editor {

/* Strokes and fills with soft edges on pixels in memory. GDI+ smooths strokes on some systems only; here every system
 * gives the same picture, which also makes pictures comparable.
 *
 * An outline is described by the distance of a pixel's centre from it; the distance tells how much of the pixel the
 * stroke covers. Colours and pen styles are as the library passes them. */
class Canvas {
  public:
    /* `pixels` stay the caller's: rows from the top, 0x00RRGGBB. */
    Canvas(uint32_t* pixels, Size size) : m_pixels(pixels), m_size(size) {}

    void StrokeLine(rulecanvas::PointF from, rulecanvas::PointF to, float width, const rulecanvas::ColorF& colour,
                    bool patterned);
    void StrokeRectangle(rulecanvas::PointF corner1, rulecanvas::PointF corner2, float width,
                         const rulecanvas::ColorF& colour, bool patterned);
    void StrokeEllipse(rulecanvas::PointF corner1, rulecanvas::PointF corner2, float width,
                       const rulecanvas::ColorF& colour);
    void PaintEllipse(rulecanvas::PointF corner1, rulecanvas::PointF corner2, const rulecanvas::ColorF& colour);
    void PaintRectangle(rulecanvas::PointF corner1, rulecanvas::PointF corner2, const rulecanvas::ColorF& colour);

    /* One pixel; outside is ignored. `alpha` 0..1. */
    void blend(int x, int y, uint32_t rgb, float alpha);

  private:
    template <class Coverage>
    void Paint(rulecanvas::PointF corner1, rulecanvas::PointF corner2, float margin, const rulecanvas::ColorF& colour,
               Coverage coverage);

    uint32_t* m_pixels;
    Size m_size;
};

/* Alpha 0..1 of a colour whose alpha may also be on a scale of 0..255. */
float alphaOf(const rulecanvas::ColorF& colour);
uint32_t rgbOf(const rulecanvas::ColorF& colour);

} // namespace rule_editor
