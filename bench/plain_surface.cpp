// A shared library of its own, as a toolkit's canvas is: on some processors a call takes longer when it leads from a
// program to a library, which lie far apart in a wide address space. Here neither the library's calls nor the bare ones do.
#include "plain_surface.h"

#include <benchmark/benchmark.h>

namespace rulecanvas::bench {
namespace {

/// Derived straight from the interface: what a call costs is then the call alone.
class PlainSurface final : public IContainerGraphics {
  public:
    void DrawLine(const PointF* from, const PointF* to, float width, const ColorF*, int32_t) override {
        Look(from->x + to->y + width);
    }
    void DrawText(const PointF* at, const TextStyle*, const char*, int32_t, int32_t) override { Look(at->x); }
    void DrawTextEx(const PointF* at, const TextStyle*, const char*) override { Look(at->x); }
    void FillEllipse(const PointF* corner, const PointF*, float, ColorF, const ColorF*) override { Look(corner->x); }
    void DrawEllipse(const PointF* corner, const PointF*, float, const ColorF*) override { Look(corner->x); }
    void DrawRectangle(const PointF* topLeft, const PointF* bottomRight, float, const ColorF*, int32_t) override {
        Look(topLeft->x + bottomRight->y);
    }
    float MeasureText(TextStyle, const char*) override { return 0.0F; }
    float MeasureTextHeight(TextStyle, const char*) override { return 0.0F; }
    void DrawTextAtPoints(const char*, const PointF* points, int32_t, ColorF, int32_t, ClientRect, int32_t) override {
        Look(points->x);
    }
    void BeginLayer() override {}
    void EndLayer(int32_t, int32_t) override {}
    void SetLayerSize(int32_t, int32_t) override {}
    void FillRectangle(const PointF* topLeft, const PointF*, const ColorF*) override { Look(topLeft->x); }

    long Calls() const { return calls; }

  private:
    void Look(float value) {
        benchmark::DoNotOptimize(value);
        ++calls;
    }

    long calls = 0;
};

PlainSurface surfaceOfAll;

} // namespace

IContainerGraphics& TheSurface() {
    return surfaceOfAll;
}

long SurfaceCalls() {
    return surfaceOfAll.Calls();
}

} // namespace rulecanvas::bench
