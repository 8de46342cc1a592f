#include "docs/figure_behaviour.h"

#include "support/scenario_host.h"

namespace rulecanvas::test {
namespace {

/// Where every figure has a point, give or take two pixels, and a place in it or on it.
constexpr PointF FirstPoint{98, 73};
constexpr PointF NearMiddle{197, 144};
constexpr PointF Step{10, 12};

PointF Beyond(const PointF& point) {
    return PointF{point.x + Step.x, point.y + Step.y};
}

} // namespace

Lines BehaviourOf(const std::string& type, const std::string& option) {
    ScenarioHost host;
    host.container.SetVideoSize(GridView, GridView);
    const ShapeID shape = host.Add(type.c_str(), ConfigOf(type), option);
    if (shape == 0) {
        return {"refused"};
    }
    host.container.SetCaption(shape, "caption");

    Lines shown;
    const auto look = [&] {
        const Lines painted = host.Paint();
        shown.insert(shown.end(), painted.begin(), painted.end());
        shown.emplace_back("end of paint");
    };
    look();
    host.Drag(NearMiddle, Beyond(NearMiddle));
    look();
    for (const PointF& point : {FirstPoint, Beyond(FirstPoint)}) { // where the point is depends on the drag before
        host.Drag(point, Beyond(Beyond(point)));
        look();
    }
    host.container.SelectShape(shape, false);
    look();
    return shown;
}

} // namespace rulecanvas::test
