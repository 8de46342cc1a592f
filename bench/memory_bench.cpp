// Bytes of the heap that a figure takes up, in a container that has been painted and pressed.

#include "scene.h"

#include <malloc.h>

namespace rulecanvas::bench {
namespace {

size_t BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void Memory(benchmark::State& state) {
    const std::vector<std::string> configurations = ConfigurationsOf(Kind::Polygon, CountOf(state));
    for (auto _ : state) {
        Scene scene(Kind::Polygon);
        PlainSurface surface;
        const size_t before = BytesInUse();
        for (const std::string& configuration : configurations) {
            scene.container.SelectShape(scene.Load(configuration), false);
        }
        scene.Click(NoFigure);
        scene.Paint(surface);
        state.counters["bytes"] = static_cast<double>(BytesInUse() - before) / CountOf(state);
    }
}

void PointsAlone(benchmark::State& state) {
    for (auto _ : state) {
        const size_t before = BytesInUse();
        std::vector<Points> figures;
        for (int index = 0; index < CountOf(state); ++index) {
            figures.push_back(FigureAt(Kind::Polygon, index));
            figures.back().shrink_to_fit();
        }
        figures.shrink_to_fit();
        state.counters["bytes"] = static_cast<double>(BytesInUse() - before) / CountOf(state);
    }
}

BENCHMARK(Memory)->Name("memory/ours/Polygon")->Apply(ForAllCounts)->Iterations(1);
BENCHMARK(PointsAlone)->Name("memory/bare/Polygon")->Apply(ForAllCounts)->Iterations(1);

} // namespace
} // namespace rulecanvas::bench
