#include "docs/figure_behaviour.h"

#include "support/scenario_host.h"

#include <map>

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

std::string GeometryOf(const std::string& type) {
    static const std::map<std::string, std::string> particular{
        {"Rect", R"({"rule":[[1000,1000],[3000,3000]]})"},
        {"OvalShape", R"({"OvalShape":[[1000,1000],[3000,3000]]})"},
        {"PixelCountShape", R"({"rule":[600,450]})"},
        {"CrossShape", R"({"rule":[[1000,1000]]})"},
        {"BigCrossShape", R"({"rule":[[0,999,8191,1001],[999,0,1001,8191],[0,4999,8191,5001],[4999,0,5001,8191]]})"},
        {"SpotShape", R"({"rule":[[1000,1000]]})"},
    };
    const auto found = particular.find(type);
    return found == particular.end() ? R"({"rule":[[1000,1000],[3000,3000],[5000,1000]]})" : found->second;
}

Lines BehaviourOf(const std::string& type, const std::string& option) {
    ScenarioHost host;
    host.container.SetVideoSize(800, 600);
    const ShapeID shape = host.Add(type.c_str(), GeometryOf(type), option);
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
