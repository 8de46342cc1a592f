#include "scene.h"

#include <chrono>
#include <cmath>
#include <malloc.h>
#include <map>
#include <memory>
#include <utility>

namespace rulecanvas::bench {
namespace {

constexpr int Width = 1920;
constexpr int Height = 1080;
constexpr int GridSpan = 8191;
constexpr int PolygonCorners = 8;

constexpr double Pi = 3.14159265358979;

int totalCount = 0;

/// The corners of a figure in a box on the grid of configuration texts.
std::vector<PointF> FigureIn(const std::string& type, float x, float y, float side) {
    if (type != "Polygon") {
        return {{x, y}, {x + side, y + side}};
    }
    std::vector<PointF> ring;
    for (int corner = 0; corner < PolygonCorners; ++corner) {
        const double angle = 2.0 * Pi * corner / PolygonCorners;
        ring.push_back({x + side * static_cast<float>(0.5 - 0.5 * std::cos(angle)),
                        y + side * static_cast<float>(0.5 - 0.5 * std::sin(angle))});
    }
    return ring;
}

std::string Written(const std::vector<PointF>& points) {
    std::string text;
    for (const PointF& point : points) {
        text += (text.empty() ? "[" : ",[") + std::to_string(std::lround(point.x)) + "," +
                std::to_string(std::lround(point.y)) + "]";
    }
    return "[" + text + "]";
}

} // namespace

int Scene::TotalCount() {
    return totalCount;
}

Scene& Scene::Of(int kind, int count) {
    static std::map<std::pair<int, int>, std::unique_ptr<Scene>> scenes;
    std::unique_ptr<Scene>& scene = scenes[{kind, count}];
    if (scene == nullptr) {
        scene = std::make_unique<Scene>(kind, count);
    }
    return *scene;
}

Scene::Scene(int kind, int count)
    : clientRect{0, 0, Width, Height}, firstCornerOfLast{}, type(Kinds.at(static_cast<size_t>(kind))),
      columns(static_cast<int>(std::ceil(std::sqrt(count)))) {
    container.OnClientRect([this](ViewID) { return clientRect; });
    container.Enable();
    shapes.reserve(static_cast<size_t>(count));

    const size_t bytesBefore = mallinfo2().uordblks;
    const auto begin = std::chrono::steady_clock::now();
    for (int place = 0; place < count; ++place) {
        shapes.push_back(Add(place));
    }
    secondsToLoad = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    bytesPerShape = static_cast<double>(mallinfo2().uordblks - bytesBefore) / count;

    for (const ShapeID shape : shapes) {
        container.SelectShape(shape, false);
    }
    totalCount += count;
}

ShapeID Scene::Add(int place) {
    const float cell = static_cast<float>(GridSpan) / static_cast<float>(columns + 1);
    const float x = cell * static_cast<float>(place % columns + 1);
    const float y = cell * static_cast<float>(place / columns + 1);
    const std::vector<PointF> figure = FigureIn(type, x, y, 0.8F * cell);
    firstCornerOfLast = {figure[0].x * Width / GridSpan, figure[0].y * Height / GridSpan};
    const std::string configuration = "{\"zone\":" + Written(figure) + "}";
    ShapeSettings settings;
    settings.view = View;
    settings.type = type.c_str();
    settings.label = "bench";
    settings.name = "zone";
    settings.configuration = configuration.c_str();
    return container.AddShape(settings);
}

} // namespace rulecanvas::bench
