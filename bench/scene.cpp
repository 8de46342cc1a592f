#include "scene.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <utility>

namespace rulecanvas::bench {

Scene::Scene(Kind figureKind) : kind(figureKind) {
    container.OnClientRect([](ViewID) { return ViewRect; });
    container.OnCapture([](bool) {});
    container.Enable();
}

Scene& Scene::Of(Kind kind, int count) {
    static std::map<std::pair<Kind, int>, std::unique_ptr<Scene>> scenes;
    std::unique_ptr<Scene>& scene = scenes[{kind, count}];
    if (scene == nullptr) {
        scene = std::make_unique<Scene>(kind);
        for (const std::string& configuration : ConfigurationsOf(kind, count)) {
            scene->shapes.push_back(scene->Load(configuration));
            scene->container.SelectShape(scene->shapes.back(), false);
        }
    }
    return *scene;
}

ShapeID Scene::Load(const std::string& configuration) {
    ShapeSettings settings;
    settings.view = View;
    settings.type = TypeOf(kind);
    settings.label = "bench";
    settings.name = "zone";
    settings.configuration = configuration.c_str();
    const ShapeID shape = container.AddShape(settings);
    if (shape == 0) {
        std::fprintf(stderr, "refused: %s\n", configuration.c_str());
        std::exit(1);
    }
    return shape;
}

void Scene::Click(const PointF& at) {
    Send(MouseCode::LeftDown, at);
    Send(MouseCode::LeftUp, at);
}

std::vector<std::string> ConfigurationsOf(Kind kind, int count) {
    std::vector<std::string> configurations;
    for (int index = 0; index < count; ++index) {
        configurations.push_back(ConfigurationOf(FigureAt(kind, index)));
    }
    return configurations;
}

void ForAllCounts(benchmark::internal::Benchmark* measured) {
    for (const int count : {10, 100, 1000, 10000}) {
        measured->Arg(count);
    }
}

} // namespace rulecanvas::bench
