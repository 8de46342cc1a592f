// The end of all figures of a container, without the pause that it makes once (see without_pause.cpp).

#include "scene.h"
#include "stopwatch.h"

namespace rulecanvas::bench {
namespace {

void DeleteAll(benchmark::State& state) {
    const std::vector<std::string> configurations = ConfigurationsOf(Kind::Polygon, CountOf(state));
    Scene scene(Kind::Polygon);
    for (auto _ : state) {
        for (const std::string& configuration : configurations) {
            scene.Load(configuration);
        }
        const Stopwatch watch;
        scene.container.DeleteAllShapes();
        state.SetIterationTime(watch.Seconds());
    }
}

/// Lists of points are given back.
void FreePoints(benchmark::State& state) {
    for (auto _ : state) {
        std::vector<Points> figures;
        for (int index = 0; index < CountOf(state); ++index) {
            figures.push_back(FigureAt(Kind::Polygon, index));
        }
        const Stopwatch watch;
        figures.clear();
        state.SetIterationTime(watch.Seconds());
    }
}

BENCHMARK(DeleteAll)->Name("delete all/ours/Polygon")->Apply(ForAllCounts)->UseManualTime();
BENCHMARK(FreePoints)->Name("delete all/bare/Polygon")->Apply(ForAllCounts)->UseManualTime();

} // namespace
} // namespace rulecanvas::bench
