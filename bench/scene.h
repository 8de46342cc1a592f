#pragma once

#include "figures.h"

#include <rulecanvas/host.hpp>

#include <benchmark/benchmark.h>

namespace rulecanvas::bench {

constexpr ViewID View = 1;

/// A container with one view, and as many figures of one kind as it is asked to load.
class Scene {
  public:
    explicit Scene(Kind figureKind);

    /// The scene of `count` figures of a kind, complete and deselected. Made when it is first asked for and kept for the
    /// other measurements, each of which leaves it as it was.
    static Scene& Of(Kind kind, int count);

    ShapeID Load(const std::string& configuration);
    void Send(MouseCode code, const PointF& at) { container.SendMouse(code, View, at.x, at.y); }
    void Click(const PointF& at);
    void Paint(IContainerGraphics& surface) const { container.Paint(View, surface); }

    Container container;
    std::vector<ShapeID> shapes;

  private:
    const Kind kind;
};

/// The configurations of the first `count` figures.
std::vector<std::string> ConfigurationsOf(Kind kind, int count);

/// 10, 100, 1,000 and 10,000 figures.
void ForAllCounts(benchmark::internal::Benchmark* measured);

inline int CountOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

/// Registers `measured` for a kind of figures.
template <class Measured>
benchmark::internal::Benchmark* RegisterFor(Kind kind, const std::string& name, Measured measured) {
    const auto run = [kind, measured](benchmark::State& state) { measured(state, kind); };
    return benchmark::RegisterBenchmark((name + "/" + TypeOf(kind)).c_str(), run)->Apply(ForAllCounts);
}

} // namespace rulecanvas::bench
