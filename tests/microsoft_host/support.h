#ifndef SUPPORT_H
#define SUPPORT_H

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

/// Writes down what is drawn; every text is 41.5 wide and 12.5 high.
class Canvas final : public Surface {
  public:
    void strokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour, int32_t pen) override;
    void strokeRectangle(const PointF& from, const PointF& to, float width, const ColorF& colour, int32_t pen) override;
    void strokeEllipse(const PointF& from, const PointF& to, float width, const ColorF& colour) override;
    void fillEllipse(const PointF& from, const PointF& to, float width, const ColorF& fill,
                     const ColorF& outline) override;
    void fillRectangle(const PointF& from, const PointF& to, const ColorF& colour) override;
    void drawString(const PointF& at, const TextStyle& style, const char* text) override;
    float stringWidth(const TextStyle& style, const char* text) override;
    float stringHeight(const TextStyle& style, const char* text) override;
    void drawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                     const ClientRect& clip) override;
    void beginLayer() override;
    void sizeLayer(int32_t width, int32_t height) override;
    void endLayer(int32_t x, int32_t y) override;
};

/// A host written against rulecanvas.h alone, with classes and method pointers as this compiler lays them out.
void RunRawHost();
/// A host written against host.hpp.
void RunHelperHost();

} // namespace rulecanvas

#endif
