// One disturbance in each life.

#include "actions.h"
#include "allocations.h"
#include "check.h"
#include "trial.h"
#include "trials.h"

#include <cctype>
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
    host.inside = [&host, callback, disturb, seen = 0L](Callback kind) mutable {
        if (seen++ == callback) {
            AddToCase(NameOf(kind));
            disturb(host, kind);
        }
    };
}

/// Whether a failure happened, and what it may have cost.
enum class Failure { None, InTheMiddle, BeforeTheFigureHeard };

/// A life with a failure somewhere. After the step in which it happens the mouse is free if it would be undisturbed; a
/// step of which the figure may not have heard is done again.
template <class Failed>
void LiveThroughFailure(Host& host, const Figure& figure, Failed failed) {
    const std::vector<std::string> life = LifeOf(figure);
    bool checked = false;
    host.Use(figure);
    for (size_t i = 0; i < life.size(); ++i) {
        host.Do(life[i]);
        const bool isEvent = std::islower(static_cast<unsigned char>(life[i][0])) != 0;
        const Failure failure = checked ? Failure::None : failed();
        if (failure != Failure::None) {
            checked = true;
            AddToCase("step " + life[i]);
            if (!isEvent) {
                continue;
            }
            if (failure == Failure::BeforeTheFigureHeard) {
                host.Do(life[i]);
            }
            Require(ReferenceOf(figure).captured[i] || !host.Captured(), "the mouse is still captured");
        }
    }
}

/// Leaves in memory what stays there for good, such as the last error of a parser.
void Settle(Host& host, const Figure& figure) {
    CheckAfterwards(host, figure);
    host.Do("B");
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
        Arm(host, place / count, [&](Host& inner, Callback) { action.run(inner, figure); });
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
        Failure failure = Failure::None;
        Arm(host, place, [&](Host&, Callback callback) {
            failure = callback == Callback::ClientRect ? Failure::BeforeTheFigureHeard : Failure::InTheMiddle;
            throw std::runtime_error("of the host");
        });
        LiveThroughFailure(host, figure, [&] { return failure; });
        CheckAfterwards(host, figure);
    });
}

long TryAllocations(long first, long stride) {
    const auto placesOf = [](const Figure& figure) {
        Host host;
        Settle(host, figure);
        return ReferenceOf(figure).allocations;
    };
    return ForEach(first, stride, placesOf, [](const Figure& figure, long place) {
        AddToCase("allocation " + std::to_string(place));
        const long blocks = LiveBlocks();
        {
            Host host;
            FailAllocation(place + 1);
            LiveThroughFailure(host, figure, [&] {
                return CountedAllocations() > place ? Failure::BeforeTheFigureHeard : Failure::None;
            });
            FailAllocation(0);
            Settle(host, figure);
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
