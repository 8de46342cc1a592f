#include "scene.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <vector>

namespace rulecanvas::bench {
namespace {

constexpr PointF Free{2.0F, 2.0F};

Scene& SceneOf(benchmark::State& state) {
    const auto kind = static_cast<int>(state.range(0));
    state.SetLabel(Kinds.at(static_cast<size_t>(kind)));
    return Scene::Of(kind, static_cast<int>(state.range(1)));
}

void Select(Scene& scene, bool selected) {
    for (const ShapeID shape : scene.shapes) {
        scene.container.SelectShape(shape, selected);
    }
}

/// All figures from their configurations, once, and what they take up.
void Load(benchmark::State& state) {
    const Scene& scene = SceneOf(state);
    for (auto _ : state) {
        state.SetIterationTime(scene.secondsToLoad);
    }
    state.counters["bytes_per_shape"] = scene.bytesPerShape;
}

/// The configurations of all figures.
void Save(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    char buffer[1024];
    for (auto _ : state) {
        for (const ShapeID shape : scene.shapes) {
            benchmark::DoNotOptimize(
                GetVideoAnalyseShapeConfigData(scene.container.Handle(), shape, buffer, sizeof(buffer)));
        }
    }
}

void PressNothing(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    for (auto _ : state) {
        scene.Send(MouseCode::LeftDown, Free);
    }
}

/// A click on the figure that a hit test reaches last.
void ClickLast(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    for (auto _ : state) {
        scene.Send(MouseCode::LeftDown, scene.firstCornerOfLast);
        scene.Send(MouseCode::LeftUp, scene.firstCornerOfLast);
    }
    Select(scene, false);
}

void MovePointer(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    scene.Send(MouseCode::LeftDown, Free);
    for (auto _ : state) {
        scene.Send(MouseCode::Moved, Free);
    }
}

/// One step of a drag of a corner.
void DragCorner(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    const PointF corner = scene.firstCornerOfLast;
    scene.Send(MouseCode::LeftDown, corner);
    float step = 1.0F;
    for (auto _ : state) {
        scene.Send(MouseCode::Moved, {corner.x + step, corner.y});
        step = -step;
    }
    scene.Send(MouseCode::Moved, corner);
    scene.Send(MouseCode::LeftUp, corner);
    Select(scene, false);
}

void Paint(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    Surface surface;
    for (auto _ : state) {
        scene.container.Paint(View, surface);
    }
}

/// All figures with their handles.
void PaintSelected(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    Select(scene, true);
    Surface surface;
    for (auto _ : state) {
        scene.container.Paint(View, surface);
    }
    Select(scene, false);
}

/// The view becomes another size, and every second time the old one.
void Resize(benchmark::State& state) {
    Scene& scene = SceneOf(state);
    const ClientRect old = scene.clientRect;
    for (auto _ : state) {
        scene.clientRect.right = scene.clientRect.right == old.right ? old.right / 2 : old.right;
        scene.container.RefitShapes();
    }
    scene.clientRect = old;
    scene.container.RefitShapes();
}

/// Covers all scenes that were made so far.
void Report(benchmark::State& state) {
    SceneOf(state);
    std::vector<char> buffer(16 * 1024 * 1024);
    for (auto _ : state) {
        GetVideoAnalyseAllShapestates(buffer.data(), static_cast<int32_t>(buffer.size()));
    }
    state.counters["shapes_in_all"] = Scene::TotalCount();
    state.SetItemsProcessed(state.iterations() * Scene::TotalCount());
}

void ForAllScenes(benchmark::internal::Benchmark* measured) {
    for (int kind = 0; kind < static_cast<int>(Kinds.size()); ++kind) {
        for (const int count : {10, 1000, 5000}) {
            measured->Args({kind, count});
        }
    }
    measured->ArgNames({"kind", "shapes"})->Unit(benchmark::kMicrosecond);
}

// First, so that it meets the scenes one after the other.
BENCHMARK(Report)->Apply(ForAllScenes);
BENCHMARK(Load)->Apply(ForAllScenes)->Iterations(1)->UseManualTime();
BENCHMARK(Save)->Apply(ForAllScenes);
BENCHMARK(PressNothing)->Apply(ForAllScenes);
BENCHMARK(ClickLast)->Apply(ForAllScenes);
BENCHMARK(MovePointer)->Apply(ForAllScenes);
BENCHMARK(DragCorner)->Apply(ForAllScenes);
BENCHMARK(Paint)->Apply(ForAllScenes);
BENCHMARK(PaintSelected)->Apply(ForAllScenes);
BENCHMARK(Resize)->Apply(ForAllScenes);

} // namespace
} // namespace rulecanvas::bench

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    // Destroying the scenes would pause for every figure.
    std::quick_exit(0);
}
