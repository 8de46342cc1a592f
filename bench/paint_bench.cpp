// A paint of all figures, and the same surface calls from a plain array of points.

#include "scene.h"

namespace rulecanvas::bench {
namespace {

constexpr float LineWidth = 2.0F;
constexpr ColorF Colour{1.0F, 0.0F, 0.0F, 255.0F};

void DrawBare(Kind kind, const Points& points, IContainerGraphics& surface) {
    static const TextStyle style{Colour, LineWidth, "MS Sans Serif"};
    switch (kind) {
    case Kind::Polygon:
        for (size_t corner = 1; corner < points.size(); ++corner) {
            surface.DrawLine(&points[corner - 1], &points[corner], LineWidth, &Colour, 0);
        }
        surface.DrawLine(&points.back(), &points.front(), LineWidth, &Colour, 0);
        surface.DrawTextAtPoints("", points.data(), static_cast<int32_t>(points.size()), Colour, 32, ViewRect, 1);
        return;
    case Kind::Rectangle:
        surface.DrawText(&points[0], &style, "", 0, 1);
        surface.DrawRectangle(&points[0], &points[1], LineWidth, &Colour, 0);
        return;
    case Kind::Line:
        surface.DrawLine(&points[0], &points[1], LineWidth, &Colour, 0);
    }
}

class BareScene {
  public:
    BareScene(Kind ofKind, int count) : kind(ofKind) {
        for (int index = 0; index < count; ++index) {
            figures.push_back(FigureAt(kind, index));
        }
    }

    void Paint(IContainerGraphics& surface) const {
        for (const Points& points : figures) {
            DrawBare(kind, points, surface);
        }
    }

  private:
    const Kind kind;
    std::vector<Points> figures;
};

/// A comparison of different drawings would say nothing.
bool CallsAreTheSame(const Scene& scene, const BareScene& bare) {
    PlainSurface ofScene;
    PlainSurface ofBare;
    scene.Paint(ofScene);
    bare.Paint(ofBare);
    return ofScene.Calls() == ofBare.Calls();
}

void Paint(benchmark::State& state, Kind kind) {
    const Scene& scene = Scene::Of(kind, CountOf(state));
    if (!CallsAreTheSame(scene, BareScene(kind, CountOf(state)))) {
        state.SkipWithError("the library draws otherwise than the bare work");
    }
    PlainSurface surface;
    for (auto _ : state) {
        scene.Paint(surface);
    }
}

void PaintBare(benchmark::State& state, Kind kind) {
    const BareScene scene(kind, CountOf(state));
    PlainSurface surface;
    IContainerGraphics* called = &surface;
    benchmark::DoNotOptimize(called);
    for (auto _ : state) {
        scene.Paint(*called);
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const Kind kind : Kinds) {
        RegisterFor(kind, "paint/ours", &Paint);
        RegisterFor(kind, "paint/bare", &PaintBare);
    }
    return true;
}();

} // namespace
} // namespace rulecanvas::bench
