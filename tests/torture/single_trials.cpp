// One disturbance in each life.

#include "actions.h"
#include "allocations.h"
#include "check.h"
#include "trial.h"
#include "trials.h"

#include <stdexcept>

namespace rulecanvas::torture {
namespace {

/// Calls `trial` with every figure and every place in its life at which it can be disturbed, each `stride`th time.
template <class Places, class Trial>
long ForEach(long first, long stride, Places placesOf, Trial trial) {
    long number = 0;
    long run = 0;
    for (const Figure& figure : Figures()) {
        const long places = placesOf(figure);
        for (long place = 0; place < places; ++place, ++number) {
            if (number >= first && (number - first) % stride == 0) {
                BeginCase(std::to_string(number) + ": " + figure.type + " " + figure.option);
                trial(figure, place);
                ++run;
            }
        }
    }
    return run;
}

long CallbacksOf(const Figure& figure) {
    return static_cast<long>(ReferenceOf(figure).callbacks);
}

/// Runs `disturb` inside the callback of that number of the host.
template <class Disturb>
void Arm(Host& host, long callback, Disturb disturb) {
    host.inside = [&host, callback, disturb, seen = 0L](Callback) mutable {
        if (seen++ == callback) {
            disturb(host);
        }
    };
}

/// A life with a failure somewhere. After the step in which it happens the mouse is free if it would be undisturbed.
template <class Failed>
void LiveThroughFailure(Host& host, const Figure& figure, Failed failed, bool releaseAgain) {
    const std::vector<std::string> life = LifeOf(figure);
    bool checked = false;
    host.Use(figure);
    for (size_t i = 0; i < life.size(); ++i) {
        host.Do(life[i]);
        if (!checked && failed()) {
            checked = true;
            AddToCase("step " + life[i]);
            if (releaseAgain) {
                host.Do("u200,200"); // the first release may not have reached the figure
            }
            Require(ReferenceOf(figure).captured[i] || !host.Captured(), "the mouse is still captured");
        }
    }
}

} // namespace

long TryCalls(long first, long stride) {
    const long count = static_cast<long>(Actions().size());
    const auto placesOf = [&](const Figure& figure) { return CallbacksOf(figure) * count; };
    return ForEach(first, stride, placesOf, [&](const Figure& figure, long place) {
        const Action& action = Actions()[static_cast<size_t>(place % count)];
        AddToCase(std::string(action.name) + " in callback " + std::to_string(place / count));
        Host host;
        host.Use(figure);
        Arm(host, place / count, [&](Host& inner) { action.run(inner, figure); });
        for (const std::string& step : LifeOf(figure)) {
            host.Do(step);
        }
        CheckAfterwards(host, figure);
    });
}

long TryThrows(long first, long stride) {
    return ForEach(first, stride, &CallbacksOf, [](const Figure& figure, long place) {
        AddToCase("callback " + std::to_string(place));
        Host host;
        bool thrown = false;
        Arm(host, place, [&](Host&) {
            thrown = true;
            throw std::runtime_error("of the host");
        });
        LiveThroughFailure(
            host, figure, [&] { return thrown; }, false);
        CheckAfterwards(host, figure);
    });
}

long TryAllocations(long first, long stride) {
    const auto placesOf = [](const Figure& figure) {
        Host host;
        CheckAfterwards(host, figure); // makes what stays in memory for good
        return ReferenceOf(figure).allocations;
    };
    return ForEach(first, stride, placesOf, [](const Figure& figure, long place) {
        AddToCase("allocation " + std::to_string(place));
        const long blocks = LiveBlocks();
        {
            Host host;
            FailAllocation(place + 1);
            LiveThroughFailure(
                host, figure, [&] { return CountedAllocations() > place; }, true);
            FailAllocation(0);
            CheckAfterwards(host, figure);
        }
        Require(LiveBlocks() == blocks, "nothing is left in memory");
    });
}

long TryRepetition() {
    long blocks = 0;
    for (const Figure& figure : Figures()) {
        BeginCase(std::string("again: ") + figure.type + " " + figure.option);
        Host host;
        host.Use(figure);
        for (int life = 0; life < 3; ++life) {
            for (const std::string& step : LifeOf(figure)) {
                host.Do(step);
            }
            host.Forget();
            Require(life < 2 || LiveBlocks() == blocks, "a container keeps nothing of the figures that it had");
            blocks = LiveBlocks();
        }
    }
    return static_cast<long>(Figures().size());
}

} // namespace rulecanvas::torture
