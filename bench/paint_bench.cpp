// A paint of all figures, and the same surface calls from a plain array of points.

#include "bare_drawing.h"
#include "plain_surface.h"
#include "scene.h"

namespace rulecanvas::bench {
namespace {

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
    const long before = SurfaceCalls();
    scene.Paint(TheSurface());
    const long between = SurfaceCalls();
    bare.Paint(TheSurface());
    return between - before == SurfaceCalls() - between;
}

void Paint(benchmark::State& state, Kind kind) {
    const Scene& scene = Scene::Of(kind, CountOf(state));
    if (!CallsAreTheSame(scene, BareScene(kind, CountOf(state)))) {
        state.SkipWithError("the library draws otherwise than the bare work");
    }
    for (auto _ : state) {
        scene.Paint(TheSurface());
    }
}

void PaintBare(benchmark::State& state, Kind kind) {
    const BareScene scene(kind, CountOf(state));
    for (auto _ : state) {
        scene.Paint(TheSurface());
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
