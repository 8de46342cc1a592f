#pragma once

#include <ctime>

namespace rulecanvas::bench {

/// The processor time of this process since it was made: what other programs use of the core does not count.
class Stopwatch {
  public:
    Stopwatch() : begin(Now()) {}
    double Seconds() const { return Now() - begin; }

  private:
    static double Now() {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
    }

    const double begin;
};

} // namespace rulecanvas::bench
