#include "ui/tool_icon.hpp"

#include <rulecanvas_kit/back_buffer.hpp>
#include <rulecanvas_kit/soft_canvas.hpp>

#include <algorithm>

namespace rule_editor {

namespace {

constexpr float IconSide = 20.0F;
constexpr float StrokeWidth = 1.6F;

enum class Stroke { Line, Dashed, Ellipse };

/// A stroke of an icon, on a square of 20 x 20.
struct IconStroke {
    const char* type;
    Stroke stroke;
    float x1;
    float y1;
    float x2;
    float y2;
};

constexpr IconStroke IconStrokes[] = {
    {"Rect", Stroke::Line, 3, 5, 17, 5},
    {"Rect", Stroke::Line, 17, 5, 17, 15},
    {"Rect", Stroke::Line, 17, 15, 3, 15},
    {"Rect", Stroke::Line, 3, 15, 3, 5},
    {"OvalShape", Stroke::Ellipse, 2, 4, 18, 16},
    {"Polygon", Stroke::Line, 10, 3, 17, 8},
    {"Polygon", Stroke::Line, 17, 8, 14, 16},
    {"Polygon", Stroke::Line, 14, 16, 6, 16},
    {"Polygon", Stroke::Line, 6, 16, 3, 8},
    {"Polygon", Stroke::Line, 3, 8, 10, 3},
    {"VirablePolygon", Stroke::Line, 3, 4, 10, 8},
    {"VirablePolygon", Stroke::Line, 10, 8, 17, 3},
    {"VirablePolygon", Stroke::Line, 17, 3, 15, 16},
    {"VirablePolygon", Stroke::Line, 15, 16, 4, 15},
    {"VirablePolygon", Stroke::Line, 4, 15, 3, 4},
    {"PixelCountShape", Stroke::Line, 3, 5, 17, 5},
    {"PixelCountShape", Stroke::Line, 17, 5, 17, 15},
    {"PixelCountShape", Stroke::Line, 17, 15, 3, 15},
    {"PixelCountShape", Stroke::Line, 3, 15, 3, 5},
    {"PixelCountShape", Stroke::Line, 7, 12, 13, 12},
    {"PixelCountShape", Stroke::Line, 10, 8, 10, 12},
    {"LineShape", Stroke::Line, 3, 16, 17, 4},
    {"VerticalLineShape", Stroke::Line, 10, 3, 10, 17},
    {"HorizontalLineShape", Stroke::Line, 3, 10, 17, 10},
    {"ArrowLineShape", Stroke::Line, 3, 16, 17, 4},
    {"ArrowLineShape", Stroke::Line, 17, 4, 11, 5},
    {"ArrowLineShape", Stroke::Line, 17, 4, 15, 10},
    {"DashLineShape", Stroke::Dashed, 2, 16, 18, 4},
    {"BrokenLine", Stroke::Line, 2, 15, 7, 6},
    {"BrokenLine", Stroke::Line, 7, 6, 12, 13},
    {"BrokenLine", Stroke::Line, 12, 13, 18, 4},
    {"XLineShape", Stroke::Line, 3, 10, 17, 10},
    {"XLineShape", Stroke::Line, 10, 3, 10, 17},
    {"XLineShape", Stroke::Line, 10, 3, 7, 6},
    {"XLineShape", Stroke::Line, 10, 3, 13, 6},
    {"CrossShape", Stroke::Line, 10, 5, 10, 15},
    {"CrossShape", Stroke::Line, 5, 10, 15, 10},
    {"BigCrossShape", Stroke::Line, 7, 1, 7, 19},
    {"BigCrossShape", Stroke::Line, 1, 7, 19, 7},
    {"BigCrossShape", Stroke::Line, 13, 1, 13, 19},
    {"BigCrossShape", Stroke::Line, 1, 13, 19, 13},
    {"SpotShape", Stroke::Ellipse, 6, 6, 14, 14},
};

uint32_t ToPixel(COLORREF colour) {
    return static_cast<uint32_t>(GetRValue(colour)) << 16U | static_cast<uint32_t>(GetGValue(colour)) << 8U |
           GetBValue(colour);
}

} // namespace

void DrawToolIcon(HDC context, const RECT& area, const std::string& type, COLORREF background, COLORREF ink) {
    rulecanvas::kit::BackBuffer icon;
    icon.Resize({area.right - area.left, area.bottom - area.top});
    std::fill_n(icon.Pixels(), icon.PixelCount(), ToPixel(background));
    rulecanvas::kit::SoftCanvas canvas(icon.Pixels(), icon.PictureSize());
    const float scale = static_cast<float>(icon.PictureSize().width) / IconSide;
    const rulecanvas::ColorF colour = {1.0F, static_cast<float>(GetRValue(ink)), static_cast<float>(GetGValue(ink)),
                                       static_cast<float>(GetBValue(ink))};
    for (const IconStroke& stroke : IconStrokes) {
        if (type != stroke.type) {
            continue;
        }
        const rulecanvas::PointF from = {stroke.x1 * scale, stroke.y1 * scale};
        const rulecanvas::PointF to = {stroke.x2 * scale, stroke.y2 * scale};
        if (stroke.stroke == Stroke::Ellipse) {
            canvas.StrokeEllipse(from, to, StrokeWidth * scale, colour);
        } else {
            canvas.StrokeLine(from, to, StrokeWidth * scale, colour, stroke.stroke == Stroke::Dashed);
        }
    }
    icon.Show(context, area.left, area.top);
}

} // namespace rule_editor
