// Hosts that do anything inside callbacks inside callbacks.

#include "actions.h"
#include "check.h"
#include "trial.h"
#include "trials.h"

#include <random>
#include <stdexcept>

namespace rulecanvas::torture {
namespace {

class RestlessHost {
  public:
    explicit RestlessHost(unsigned seed)
        : random(seed), throws(seed % 2 == 1), figure(Pick(Figures())), another(Pick(Figures())) {
        host.Use(figure);
        host.inside = [this](Callback) { Answer(); };
    }

    void Live() {
        for (const std::string& step : LifeOf(figure)) {
            if (Below(8) == 0) {
                Act();
            }
            host.Do(step);
        }
        actionsLeft = 0;
        CheckAfterwards(host, figure);
    }

  private:
    static constexpr int Deepest = 4;
    static constexpr unsigned AnswersOneIn = 12;

    unsigned Below(unsigned limit) { return static_cast<unsigned>(random() % limit); }

    template <class Element>
    const Element& Pick(const std::vector<Element>& all) {
        return all[Below(static_cast<unsigned>(all.size()))];
    }

    void Answer() {
        if (depth < Deepest && actionsLeft > 0 && Below(AnswersOneIn) == 0) {
            Act();
            if (throws && Below(10) == 0) {
                throw std::runtime_error("of the host");
            }
        }
    }

    void Act() {
        --actionsLeft;
        ++depth;
        try {
            ActOnce();
        } catch (...) {
            --depth;
            throw;
        }
        --depth;
    }

    void ActOnce() {
        if (Below(3) != 0) {
            return Pick(Actions()).run(host, Below(2) == 0 ? figure : another);
        }
        host.Use(Below(2) == 0 ? figure : another);
        host.Do(Pick(LifeOf(figure)));
        host.Use(figure);
    }

    std::minstd_rand random;
    const bool throws;
    const Figure& figure;
    const Figure& another;
    int depth = 0;
    int actionsLeft = 40;
    Host host;
};

} // namespace

long TryNesting(long first, long count) {
    for (long seed = first; seed < first + count; ++seed) { // an odd one throws, too
        BeginCase("seed " + std::to_string(seed));
        RestlessHost(static_cast<unsigned>(seed)).Live();
    }
    return count;
}

} // namespace rulecanvas::torture
