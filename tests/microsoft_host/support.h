#pragma once

#include <rulecanvas/surface.hpp>

#include <stddef.h>

// There is no library to include: these come from the system's C run-time library.
extern "C" {
void* __cdecl memcpy(void* to, const void* from, size_t size);
int __cdecl strcmp(const char* a, const char* b);
}

namespace rulecanvas {

/// Writes down a call of the library, one line each.
void Write(const char* format, ...);
/// Prints whether the lines since the last time are exactly the expected ones.
void ExpectCalls(const char* what, const char* format, ...);
void Expect(const char* what, bool met);
/// Expects what every host hears of a rectangle that is made, drawn, pressed and pointed at.
void ExpectRectangle(ShapeID shape);

/// Writes down what is drawn; every text is 41.5 wide and 12.5 high.
class Canvas final : public Surface {
  public:
    void StrokeLine(const PointF& a, const PointF& b, float width, const ColorF& colour, int32_t pen) override {
        WriteStroke("line", a, b, width, colour, pen);
    }
    void StrokeRectangle(const PointF& a, const PointF& b, float width, const ColorF& colour, int32_t pen) override {
        WriteStroke("rect", a, b, width, colour, pen);
    }
    void StrokeEllipse(const PointF& a, const PointF& b, float width, const ColorF& colour) override {
        WriteStroke("ellipse", a, b, width, colour);
    }
    void PaintEllipse(const PointF& a, const PointF& b, float width, const ColorF& fill, const ColorF& edge) override {
        WriteStroke("disc", a, b, width, fill);
        WriteStroke("outline", a, b, width, edge);
    }
    void PaintRectangle(const PointF& a, const PointF& b, const ColorF& colour) override {
        WriteStroke("fill", a, b, 0, colour);
    }
    void DrawString(const PointF& at, const TextStyle& style, const char* text) override {
        Write("at (%g,%g) ", at.x, at.y);
        WriteStyled("text", style, text);
    }
    float StringWidth(const TextStyle& style, const char* text) override {
        WriteStyled("width of", style, text);
        return 41.5F;
    }
    float StringHeight(const TextStyle& style, const char* text) override {
        WriteStyled("height of", style, text);
        return 12.5F;
    }
    void DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                     const ClientRect& clip) override {
        Write("caption '%s' of %d points in %d,%d,%d,%d\n", text, count, clip.left, clip.top, clip.right, clip.bottom);
        WriteStroke("points", points[0], points[count - 1], 0, colour);
    }
    void OpenLayer() override { Write("layer\n"); }
    void SizeLayer(int32_t width, int32_t height) override { Write("layer of %dx%d\n", width, height); }
    void CloseLayer(int32_t x, int32_t y) override { Write("layer at %d,%d\n", x, y); }

  private:
    static void WriteStroke(const char* what, const PointF& from, const PointF& to, float width, const ColorF& colour,
                            int32_t pen = 0) {
        Write("%s (%g,%g)-(%g,%g) width %g %g,%g,%g@%g pen %d\n", what, from.x, from.y, to.x, to.y, width, colour.red,
              colour.green, colour.blue, colour.alpha, pen);
    }
    static void WriteStyled(const char* what, const TextStyle& style, const char* text) {
        const ColorF& colour = style.colour;
        Write("%s '%s' size %g %g,%g,%g@%g in %s\n", what, text, style.size, colour.red, colour.green, colour.blue,
              colour.alpha, style.face);
    }
};

/// A host written against rulecanvas.h alone, with classes and method pointers as this compiler lays them out.
void RunRawHost();
/// A host written against host.hpp.
void RunHelperHost();

} // namespace rulecanvas
