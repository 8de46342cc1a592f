#pragma once

#include <rulecanvas/rulecanvas.h>

#include <benchmark/benchmark.h>

namespace rulecanvas::bench {

/// Takes every call, looks at what it is given, and draws nothing. Derived straight from the interface: what a call costs
/// is then the call alone, for the library and for the bare work beside it.
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

} // namespace rulecanvas::bench
