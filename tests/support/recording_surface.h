#pragma once

#include "rulecanvas/rulecanvas.h"

#include <functional>
#include <string>
#include <vector>

namespace rulecanvas::test {

using Lines = std::vector<std::string>;

/// "(10,20.5)"; at most two decimals.
std::string Written(const PointF& point);

/// A surface that writes down what is drawn on it:
///
///     line (0,0)-(10,10) w2 yellow            with " dashed" for pen style 1
///     rect (0,0)-(10,10) w2 blue
///     ellipse (0,0)-(10,10) w2 yellow         fill-ellipse ... for a filled one
///     text (0,0) "A" size 2 yellow
///     caption "A" at (0,0)(10,10) yellow clip 0,0,800,600
///     layer, layer-size 20x20, fill (0,0)-(8,8) 0,0,0@128, layer-end (5,5)
///
/// Colours are named when they are the two defaults, else "r,g,b", with "@alpha" when not opaque. Every character is 7
/// pixels wide and 12 high.
class RecordingSurface final : public IContainerGraphics {
  public:
    /// `onCall` runs inside every call.
    explicit RecordingSurface(std::function<void()> onCall = [] {}) : called(std::move(onCall)) {}

    Lines calls;

    void DrawLine(const PointF* from, const PointF* to, float width, const ColorF* colour, int32_t penStyle) override;
    void DrawText(const PointF* at, const TextStyle* style, const char* text, int32_t first, int32_t second) override;
    void DrawTextEx(const PointF* at, const TextStyle* style, const char* text) override;
    void FillEllipse(const PointF* corner1, const PointF* corner2, float width, ColorF fill,
                     const ColorF* outline) override;
    void DrawEllipse(const PointF* corner1, const PointF* corner2, float width, const ColorF* colour) override;
    void DrawRectangle(const PointF* topLeft, const PointF* bottomRight, float width, const ColorF* colour,
                       int32_t penStyle) override;
    float MeasureText(TextStyle style, const char* text) override;
    float MeasureTextHeight(TextStyle style, const char* text) override;
    void DrawTextAtPoints(const char* text, const PointF* points, int32_t count, ColorF colour, int32_t format,
                          ClientRect clip, int32_t last) override;
    void BeginLayer() override;
    void EndLayer(int32_t x, int32_t y) override;
    void SetLayerSize(int32_t width, int32_t height) override;
    void FillRectangle(const PointF* topLeft, const PointF* bottomRight, const ColorF* colour) override;

  private:
    void Write(const std::string& call);

    std::function<void()> called;
};

} // namespace rulecanvas::test
