// Bytes of the heap that a figure takes up, in a container that has been painted and pressed.

#include "plain_surface.h"
#include "scene.h"

#include <malloc.h>
#include <thread>

namespace rulecanvas::bench {
namespace {

size_t BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// On a thread of its own, because the allocator keeps what a thread gave back for that thread, and counts it as in use.
template <class Measured>
void MeasureApart(benchmark::State& state, Measured measured) {
    for (auto _ : state) {
        std::thread([&] { state.counters["bytes"] = static_cast<double>(measured()) / CountOf(state); }).join();
    }
}

void Memory(benchmark::State& state) {
    const std::vector<std::string> configurations = ConfigurationsOf(Kind::Polygon, CountOf(state));
    MeasureApart(state, [&] {
        Scene scene(Kind::Polygon);
        const size_t before = BytesInUse();
        for (const std::string& configuration : configurations) {
            scene.container.SelectShape(scene.Load(configuration), false);
        }
        scene.Click(NoFigure);
        scene.Paint(TheSurface());
        return BytesInUse() - before;
    });
}

void PointsAlone(benchmark::State& state) {
    MeasureApart(state, [&] {
        const size_t before = BytesInUse();
        std::vector<Points> figures;
        for (int index = 0; index < CountOf(state); ++index) {
            figures.push_back(FigureAt(Kind::Polygon, index));
            figures.back().shrink_to_fit();
        }
        figures.shrink_to_fit();
        return BytesInUse() - before;
    });
}

BENCHMARK(Memory)->Name("memory/ours/Polygon")->Apply(ForAllCounts)->Iterations(1);
BENCHMARK(PointsAlone)->Name("memory/bare/Polygon")->Apply(ForAllCounts)->Iterations(1);

} // namespace
} // namespace rulecanvas::bench
