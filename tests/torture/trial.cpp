#include "trial.h"

#include "allocations.h"
#include "check.h"
#include "other_thread.h"

#include <array>
#include <map>

namespace rulecanvas::torture {
namespace {

Reference Measure(const Figure& figure) {
    Reference reference;
    Host host;
    reference.fresh = DrawFresh(host, figure);
    Require(reference.fresh.find("rule") != std::string::npos, "the drawing makes a figure");
    host.inside = [&](Callback) { ++reference.callbacks; };
    FailAllocation(0);
    for (const std::string& step : LifeOf(figure)) {
        host.Do(step);
        reference.captured.push_back(host.Captured());
    }
    reference.allocations = CountedAllocations();
    return reference;
}

bool HasNoShapes(Host& host) {
    std::array<char, 4096> report{};
    host.Call(&GetVideoAnalyseAllShapestates, report.data(), static_cast<int32_t>(report.size()));
    return std::string(report.data()) == "null";
}

} // namespace

const Reference& ReferenceOf(const Figure& figure) {
    static std::map<const Figure*, Reference> known;
    const auto found = known.find(&figure);
    return found != known.end() ? found->second : known.emplace(&figure, Measure(figure)).first->second;
}

void CheckAfterwards(Host& host, const Figure& figure) {
    const std::string& expected = ReferenceOf(figure).fresh;
    host.inside = nullptr;
    if (!host.IsAlive()) {
        Host another;
        Require(DrawFresh(another, figure) == expected, "a new container draws as on the first day");
        return;
    }
    OtherThread::Instance().Run([&] {
        host.Paint();
        host.Do("F");
        host.Do("W");
    });
    host.Reset();
    Require(HasNoShapes(host), "no shape outlives its deletion");
    host.inside = [](Callback callback) { Require(callback != Callback::Drawing, "nothing is left to be drawn"); };
    host.Paint();
    host.inside = nullptr;
    Require(DrawFresh(host, figure) == expected, "a new figure is drawn as on the first day");
}

} // namespace rulecanvas::torture
