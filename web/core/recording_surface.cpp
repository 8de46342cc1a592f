#include "recording_surface.hpp"

#include <algorithm>
#include <cstring>

namespace rulecanvas_web {

using rulecanvas::ClientRect;
using rulecanvas::ColorF;
using rulecanvas::PointF;
using rulecanvas::TextStyle;

namespace {

uint32_t Part(float value) {
    return static_cast<uint32_t>(std::clamp(value, 0.0F, 255.0F));
}

/// An alpha above 1 is meant on a scale of 0..255.
uint32_t Packed(const ColorF& colour) {
    const float alpha = colour.alpha > 1.0F ? colour.alpha : colour.alpha * 255.0F;
    return Part(colour.red) << 24U | Part(colour.green) << 16U | Part(colour.blue) << 8U | Part(alpha);
}

uint32_t BitsOf(float number) {
    uint32_t bits = 0;
    std::memcpy(&bits, &number, sizeof(bits));
    return bits;
}

} // namespace

void RecordingSurface::Begin() {
    words.swap(previous);
    words.clear();
    pen.reset();
    openPath = 0;
    layerOpen = false;
}

bool RecordingSurface::End() {
    return words != previous;
}

/// Segments that go on where the one before ended become one path, so that their corners join.
void RecordingSurface::StrokeLine(const PointF& from, const PointF& to, float width, const ColorF& colour,
                                  int32_t penStyle) {
    SelectPen(width, colour, penStyle);
    const size_t end = words.size();
    if (openPath != 0 && words[end - 2] == BitsOf(from.x) && words[end - 1] == BitsOf(from.y)) {
        ++words[openPath];
        Put(to);
        return;
    }
    Start(Command::Path);
    openPath = words.size();
    Put(2U);
    Put(from);
    Put(to);
}

void RecordingSurface::StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float width,
                                       const ColorF& colour, int32_t penStyle) {
    SelectPen(width, colour, penStyle);
    Start(Command::Rectangle);
    Put(topLeft);
    Put(bottomRight);
}

void RecordingSurface::StrokeEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& colour) {
    SelectPen(width, colour, 0);
    Start(Command::Ellipse);
    Put(corner1);
    Put(corner2);
}

void RecordingSurface::PaintEllipse(const PointF& corner1, const PointF& corner2, float width, const ColorF& fill,
                                    const ColorF& outline) {
    Start(Command::FillEllipse);
    Put(corner1);
    Put(corner2);
    Put(Packed(fill));
    StrokeEllipse(corner1, corner2, width, outline);
}

void RecordingSurface::PaintRectangle(const PointF& topLeft, const PointF& bottomRight, const ColorF& colour) {
    if (layerOpen) {
        layer.push_back({topLeft, bottomRight, Packed(colour)});
    } else {
        PutFill(topLeft, bottomRight, Packed(colour));
    }
}

void RecordingSurface::DrawString(const PointF& at, const TextStyle& style, const char* text) {
    if (*text == '\0') {
        return;
    }
    Start(Command::Text);
    Put(at);
    Put(style.size);
    Put(Packed(style.colour));
    PutText(text);
}

float RecordingSurface::StringWidth(const TextStyle& style, const char* text) {
    return measures.Find(text, style.size).width;
}

float RecordingSurface::StringHeight(const TextStyle& style, const char* text) {
    return measures.Find(text, style.size).height;
}

void RecordingSurface::DrawCaption(const char* text, const PointF* points, int32_t count, const ColorF& colour,
                                   const ClientRect& clip) {
    if (count <= 0 || *text == '\0') {
        return;
    }
    Start(Command::Caption);
    Put(points[0]);
    Put(Packed(colour));
    for (const int32_t side : {clip.left, clip.top, clip.right, clip.bottom}) {
        Put(static_cast<float>(side));
    }
    PutText(text);
}

void RecordingSurface::OpenLayer() {
    layerOpen = true;
    layerSize = {0.0F, 0.0F};
    layer.clear();
}

void RecordingSurface::SizeLayer(int32_t width, int32_t height) {
    layerSize = {static_cast<float>(width), static_cast<float>(height)};
}

/// The cells of a layer do not overlap, so they can be blended into the picture in any order: by colour, which the page
/// then sets once for each.
void RecordingSurface::CloseLayer(int32_t x, int32_t y) {
    layerOpen = false;
    std::stable_sort(layer.begin(), layer.end(),
                     [](const LayerFill& one, const LayerFill& other) { return one.colour < other.colour; });
    const auto placed = [&](const PointF& point) {
        return PointF{static_cast<float>(x) + std::clamp(point.x, 0.0F, std::max(layerSize.x, 0.0F)),
                      static_cast<float>(y) + std::clamp(point.y, 0.0F, std::max(layerSize.y, 0.0F))};
    };
    for (const LayerFill& fill : layer) {
        PutFill(placed(fill.topLeft), placed(fill.bottomRight), fill.colour);
    }
    layer.clear();
}

void RecordingSurface::Put(float number) {
    Put(BitsOf(number));
}

void RecordingSurface::Put(const PointF& point) {
    Put(point.x);
    Put(point.y);
}

void RecordingSurface::PutText(const char* text) {
    const size_t length = std::strlen(text);
    Put(static_cast<uint32_t>(length));
    const size_t begin = words.size();
    words.resize(begin + (length + sizeof(uint32_t) - 1) / sizeof(uint32_t), 0);
    std::memcpy(words.data() + begin, text, length);
}

void RecordingSurface::Start(Command command) {
    openPath = 0;
    Put(static_cast<uint32_t>(command));
}

void RecordingSurface::SelectPen(float width, const ColorF& colour, int32_t style) {
    const Pen wanted = {width, Packed(colour), static_cast<uint32_t>(style)};
    if (pen && BitsOf(pen->width) == BitsOf(wanted.width) && pen->colour == wanted.colour &&
        pen->style == wanted.style) {
        return;
    }
    pen = wanted;
    Start(Command::Pen);
    Put(wanted.width);
    Put(wanted.colour);
    Put(wanted.style);
}

void RecordingSurface::PutFill(const PointF& topLeft, const PointF& bottomRight, uint32_t colour) {
    Start(Command::FillRectangle);
    Put(topLeft);
    Put(bottomRight);
    Put(colour);
}

} // namespace rulecanvas_web
