// What the user feels: presses, moves and drags among many polygons.

#include "scene.h"

#include <algorithm>

namespace rulecanvas::bench {
namespace {

void PressNothing(benchmark::State& state) {
    Scene& scene = Scene::Of(Kind::Polygon, CountOf(state));
    for (auto _ : state) {
        scene.Click(NoFigure);
    }
}

/// On the figure that a walk over all reaches last.
void PressFigure(benchmark::State& state) {
    Scene& scene = Scene::Of(Kind::Polygon, CountOf(state));
    const PointF press = CentreOf(CountOf(state) - 1);
    scene.Click(press);
    if (scene.container.SelectedShape() == 0) {
        state.SkipWithError("the press met no figure");
    }
    for (auto _ : state) {
        scene.Click(press);
    }
    scene.Click(NoFigure);
}

struct Box {
    PointF low;
    PointF high;
};

std::vector<Box> BoxesOf(int count) {
    std::vector<Box> boxes;
    for (int index = 0; index < count; ++index) {
        const Points points = FigureAt(Kind::Polygon, index);
        Box box{points.front(), points.front()};
        for (const PointF& point : points) {
            box.low = {std::min(box.low.x, point.x), std::min(box.low.y, point.y)};
            box.high = {std::max(box.high.x, point.x), std::max(box.high.y, point.y)};
        }
        boxes.push_back(box);
    }
    return boxes;
}

/// One look at each bounding box, as the simplest host would do it.
void PassOverBoxes(benchmark::State& state) {
    const std::vector<Box> boxes = BoxesOf(CountOf(state));
    PointF press = NoFigure;
    for (auto _ : state) {
        benchmark::DoNotOptimize(press);
        int hits = 0;
        for (const Box& box : boxes) {
            hits += press.x >= box.low.x && press.x <= box.high.x && press.y >= box.low.y && press.y <= box.high.y;
        }
        benchmark::DoNotOptimize(hits);
    }
}

/// Moves while nothing is dragged.
void Hover(benchmark::State& state) {
    Scene& scene = Scene::Of(Kind::Polygon, CountOf(state));
    scene.Click(NoFigure);
    float x = 100.0F;
    for (auto _ : state) {
        scene.Send(MouseCode::Moved, {x, 500.0F});
        x = 201.0F - x;
    }
}

class Receiver {
  public:
    virtual ~Receiver() = default;
    virtual void Receive(const ContainerMouseEvent* event) { benchmark::DoNotOptimize(event->x); }
};

/// The record is filled in and handed over by one virtual call.
void EmptyCall(benchmark::State& state) {
    Receiver receiver;
    Receiver* called = &receiver;
    benchmark::DoNotOptimize(called);
    float x = 100.0F;
    for (auto _ : state) {
        const ContainerMouseEvent event{static_cast<uint32_t>(MouseCode::Moved), View, 0, x, 500.0F, 0, 0};
        called->Receive(&event);
        x = 201.0F - x;
    }
}

/// Presses figures until one is grabbed as a whole: among many, the outline of another one may be nearer.
bool GrabWhole(Scene& scene, PointF& grabbedAt) {
    for (int index = 0; index < static_cast<int>(scene.shapes.size()); ++index) {
        grabbedAt = CentreOf(index);
        scene.Send(MouseCode::LeftDown, grabbedAt);
        const ShapeID pressed = scene.container.SelectedShape();
        const std::string before = scene.container.Configuration(pressed).str();
        scene.Send(MouseCode::Moved, {grabbedAt.x + 3.0F, grabbedAt.y});
        const std::string after = scene.container.Configuration(pressed).str();
        scene.Send(MouseCode::Moved, grabbedAt);
        if (before != after) {
            return true;
        }
        scene.Send(MouseCode::LeftUp, grabbedAt);
        scene.Click(NoFigure);
    }
    return false;
}

/// Steps of one pixel, there and back.
void DragStep(benchmark::State& state) {
    Scene& scene = Scene::Of(Kind::Polygon, CountOf(state));
    PointF grabbedAt{};
    if (!GrabWhole(scene, grabbedAt)) {
        state.SkipWithError("no figure could be dragged");
    }
    float step = 1.0F;
    for (auto _ : state) {
        scene.Send(MouseCode::Moved, {grabbedAt.x + step, grabbedAt.y});
        step = 1.0F - step;
    }
    scene.Send(MouseCode::Moved, grabbedAt);
    scene.Send(MouseCode::LeftUp, grabbedAt);
    scene.Click(NoFigure);
}

/// The corners of one polygon, tested against the view and moved.
void ShiftPoints(benchmark::State& state) {
    Points points = FigureAt(Kind::Polygon, 0);
    float step = 1.0F;
    for (auto _ : state) {
        const bool stays = std::all_of(points.begin(), points.end(), [step](const PointF& point) {
            return point.x + step >= 0.0F && point.x + step <= static_cast<float>(ViewRect.right) && point.y >= 0.0F &&
                   point.y <= static_cast<float>(ViewRect.bottom);
        });
        for (PointF& point : points) {
            point.x += stays ? step : 0.0F;
        }
        benchmark::DoNotOptimize(points.data());
        benchmark::ClobberMemory();
        step = -step;
    }
}

BENCHMARK(PressNothing)->Name("press on nothing/ours/Polygon")->Apply(ForAllCounts);
BENCHMARK(PassOverBoxes)->Name("press on nothing/bare/Polygon")->Apply(ForAllCounts);
BENCHMARK(PressFigure)->Name("press on a figure/ours/Polygon")->Apply(ForAllCounts);
BENCHMARK(PassOverBoxes)->Name("press on a figure/bare/Polygon")->Apply(ForAllCounts);
BENCHMARK(Hover)->Name("hover/ours/Polygon")->Apply(ForAllCounts);
BENCHMARK(EmptyCall)->Name("hover/bare/Polygon")->Apply(ForAllCounts);
BENCHMARK(DragStep)->Name("drag step/ours/Polygon")->Apply(ForAllCounts);
BENCHMARK(ShiftPoints)->Name("drag step/bare/Polygon")->Apply(ForAllCounts);

} // namespace
} // namespace rulecanvas::bench
