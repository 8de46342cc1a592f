#include "ui/tools.hpp"

#include "picture/canvas.hpp"

#include <rulecanvas/host.hpp>

#include <algorithm>
#include <iterator>

namespace rule_editor {

namespace {

constexpr const char* DRAG_HINT = "Press and drag";
constexpr const char* CLICK_HINT = "Click the points, then the right button";

constexpr Tool TOOLS[] = {
    {"Rect", "Rectangle", DRAG_HINT},
    {"OvalShape", "Oval", DRAG_HINT},
    {"Polygon", "Polygon", CLICK_HINT},
    {"VirablePolygon", "Variable polygon", CLICK_HINT},
    {"PixelCountShape", "Pixel counter", DRAG_HINT},
    {"LineShape", "Line", DRAG_HINT},
    {"VerticalLineShape", "Vertical line", DRAG_HINT},
    {"HorizontalLineShape", "Horizontal line", DRAG_HINT},
    {"ArrowLineShape", "Arrow", DRAG_HINT},
    {"DashLineShape", "Dashed line", DRAG_HINT},
    {"BrokenLine", "Broken line", CLICK_HINT},
    {"XLineShape", "Crossing line A-B", CLICK_HINT},
    {"CrossShape", "Cross", "Click the places"},
    {"BigCrossShape", "Two cross-hairs", "Click two places"},
    {"SpotShape", "Spot", "Click the place"},
};

enum class Stroke { line, dashed, ellipse };

/* A stroke of an icon; coordinates in pixels of the icon. */
struct IconStroke {
    const char* type;
    Stroke stroke;
    float x1;
    float y1;
    float x2;
    float y2;
};

constexpr IconStroke ICON_STROKES[] = {
    {"Rect", Stroke::line, 3, 5, 17, 5},
    {"Rect", Stroke::line, 17, 5, 17, 15},
    {"Rect", Stroke::line, 17, 15, 3, 15},
    {"Rect", Stroke::line, 3, 15, 3, 5},
    {"OvalShape", Stroke::ellipse, 2, 4, 18, 16},
    {"Polygon", Stroke::line, 10, 3, 17, 8},
    {"Polygon", Stroke::line, 17, 8, 14, 16},
    {"Polygon", Stroke::line, 14, 16, 6, 16},
    {"Polygon", Stroke::line, 6, 16, 3, 8},
    {"Polygon", Stroke::line, 3, 8, 10, 3},
    {"VirablePolygon", Stroke::line, 3, 4, 10, 8},
    {"VirablePolygon", Stroke::line, 10, 8, 17, 3},
    {"VirablePolygon", Stroke::line, 17, 3, 15, 16},
    {"VirablePolygon", Stroke::line, 15, 16, 4, 15},
    {"VirablePolygon", Stroke::line, 4, 15, 3, 4},
    {"PixelCountShape", Stroke::line, 3, 5, 17, 5},
    {"PixelCountShape", Stroke::line, 17, 5, 17, 15},
    {"PixelCountShape", Stroke::line, 17, 15, 3, 15},
    {"PixelCountShape", Stroke::line, 3, 15, 3, 5},
    {"PixelCountShape", Stroke::line, 7, 12, 13, 12},
    {"PixelCountShape", Stroke::line, 10, 8, 10, 12},
    {"LineShape", Stroke::line, 3, 16, 17, 4},
    {"VerticalLineShape", Stroke::line, 10, 3, 10, 17},
    {"HorizontalLineShape", Stroke::line, 3, 10, 17, 10},
    {"ArrowLineShape", Stroke::line, 3, 16, 17, 4},
    {"ArrowLineShape", Stroke::line, 17, 4, 11, 5},
    {"ArrowLineShape", Stroke::line, 17, 4, 15, 10},
    {"DashLineShape", Stroke::dashed, 2, 16, 18, 4},
    {"BrokenLine", Stroke::line, 2, 15, 7, 6},
    {"BrokenLine", Stroke::line, 7, 6, 12, 13},
    {"BrokenLine", Stroke::line, 12, 13, 18, 4},
    {"XLineShape", Stroke::line, 3, 10, 17, 10},
    {"XLineShape", Stroke::line, 10, 3, 10, 17},
    {"XLineShape", Stroke::line, 10, 3, 7, 6},
    {"XLineShape", Stroke::line, 10, 3, 13, 6},
    {"CrossShape", Stroke::line, 10, 5, 10, 15},
    {"CrossShape", Stroke::line, 5, 10, 15, 10},
    {"BigCrossShape", Stroke::line, 7, 1, 7, 19},
    {"BigCrossShape", Stroke::line, 1, 7, 19, 7},
    {"BigCrossShape", Stroke::line, 13, 1, 13, 19},
    {"BigCrossShape", Stroke::line, 1, 13, 19, 13},
    {"SpotShape", Stroke::ellipse, 6, 6, 14, 14},
};

/* Nobody has drawn anything with a tool yet, so trying it costs nothing but a container. */
bool isMade(rulecanvas::Container& scratch, const Tool& tool) {
    rulecanvas::ShapeSettings settings;
    settings.type = tool.type;
    return scratch.AddShape(settings) != 0;
}

} // namespace

std::vector<Tool> availableTools() {
    rulecanvas::Container scratch;
    std::vector<Tool> tools;
    std::copy_if(std::begin(TOOLS), std::end(TOOLS), std::back_inserter(tools),
                 [&scratch](const Tool& tool) { return isMade(scratch, tool); });
    return tools;
}

Frame toolIcon(const std::string& type, uint32_t background, uint32_t ink) {
    Frame icon;
    icon.resize({TOOL_ICON_SIDE, TOOL_ICON_SIDE});
    std::fill(icon.pixels.begin(), icon.pixels.end(), background);
    Canvas canvas(icon.pixels.data(), icon.size);
    const auto part = [ink](unsigned shift) { return static_cast<float>((ink >> shift) & 0xFFU); };
    const rulecanvas::ColorF colour = {1.0F, part(16), part(8), part(0)};
    constexpr float WIDTH = 1.6F;
    for (const IconStroke& stroke : ICON_STROKES) {
        if (type != stroke.type) {
            continue;
        }
        if (stroke.stroke == Stroke::ellipse) {
            canvas.StrokeEllipse({stroke.x1, stroke.y1}, {stroke.x2, stroke.y2}, WIDTH, colour);
        } else {
            canvas.StrokeLine({stroke.x1, stroke.y1}, {stroke.x2, stroke.y2}, WIDTH, colour,
                              stroke.stroke == Stroke::dashed);
        }
    }
    return icon;
}

} // namespace rule_editor
