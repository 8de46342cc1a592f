// A host that does whatever a host may do, and some of what it should not:
//
//     torture calls [FIRST [STRIDE]]          one call inside one callback of the life of a figure
//     torture throws [FIRST [STRIDE]]         one callback that ends by an exception
//     torture allocations [FIRST [STRIDE]]    one allocation of the library that fails
//     torture repetition                      figures that come and go, and leave nothing in memory
//     torture nesting [SEED [COUNT]]          anything inside callbacks inside callbacks
//     torture threads [ROUNDS]                four threads beside each other
//
// Without a stride every trial is run, which takes minutes. A trial that fails is named with its number; "NUMBER 1000000000"
// runs it alone.

#include "trials.h"

#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
    using namespace rulecanvas::torture;
    const std::string kind = argc > 1 ? argv[1] : "";
    const auto number = [&](int place, long otherwise) {
        return argc > place ? std::strtol(argv[place], nullptr, 10) : otherwise;
    };
    long run = 0;
    if (kind == "calls") {
        run = TryCalls(number(2, 0), number(3, 1));
    } else if (kind == "throws") {
        run = TryThrows(number(2, 0), number(3, 1));
    } else if (kind == "allocations") {
        run = TryAllocations(number(2, 0), number(3, 1));
    } else if (kind == "repetition") {
        run = TryRepetition();
    } else if (kind == "nesting") {
        run = TryNesting(number(2, 1), number(3, 100000));
    } else if (kind == "threads") {
        run = TryThreads(number(2, 1000));
    }
    std::printf("%ld trials of %s\n", run, kind.c_str());
    return run > 0 ? 0 : 1;
}
