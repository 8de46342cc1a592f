#pragma once

#include "text_measures.hpp"

#include <rulecanvas/surface.hpp>

#include <cstdint>
#include <optional>
#include <vector>

namespace rulecanvas_web {

/// The commands of a recording. Each is followed by its arguments: floats and whole numbers of 32 bits, colours as
/// 0xRRGGBBAA, texts as their length in bytes and then the bytes, filled up to whole words. `src/recording.ts` reads
/// them.
enum class Command : uint32_t {
    Pen = 1,           ///< width, colour, style: for every stroke that follows
    Path = 2,          ///< count, then as many points: an open line through them
    Rectangle = 3,     ///< two corners, stroked
    Ellipse = 4,       ///< two corners of its box, stroked
    FillEllipse = 5,   ///< two corners of its box, colour
    FillRectangle = 6, ///< two corners, colour
    Text = 7,          ///< top left, size, colour, text
    Caption = 8        ///< first point of the figure, colour, clip (left, top, right, bottom), text
};

/// Writes one paint down as a flat list of words, which the page reads in one go.
class RecordingSurface final : public rulecanvas::Surface {
  public:
    explicit RecordingSurface(TextMeasures& givenMeasures) : measures(givenMeasures) {}

    void Begin();
    /// Whether the words differ from those of the paint before.
    bool End();
    const std::vector<uint32_t>& Words() const { return words; }

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
    struct Pen {
        float width;
        uint32_t colour;
        uint32_t style;
    };
    struct LayerFill {
        rulecanvas::PointF topLeft;
        rulecanvas::PointF bottomRight;
        uint32_t colour;
    };

    void Put(uint32_t word) { words.push_back(word); }
    void Put(float number);
    void Put(const rulecanvas::PointF& point);
    void PutText(const char* text);
    void Start(Command command);
    void SelectPen(float width, const rulecanvas::ColorF& colour, int32_t style);
    void PutFill(const rulecanvas::PointF& topLeft, const rulecanvas::PointF& bottomRight, uint32_t colour);

    TextMeasures& measures;
    std::vector<uint32_t> words;
    std::vector<uint32_t> previous;
    std::optional<Pen> pen;
    /// Where the count of the path that may still grow stands in `words`; 0 without one.
    size_t openPath = 0;
    bool layerOpen = false;
    rulecanvas::PointF layerSize = {0.0F, 0.0F};
    std::vector<LayerFill> layer;
};

} // namespace rulecanvas_web
