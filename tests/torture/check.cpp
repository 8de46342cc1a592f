#include "check.h"

#include <cstdio>
#include <cstdlib>

namespace rulecanvas::torture {
namespace {

std::string currentCase;

void PrintCase() {
    std::fprintf(stderr, "torture: in the case: %s\n", currentCase.c_str());
}

} // namespace

void BeginCase(std::string description) {
    currentCase = std::move(description);
}

void AddToCase(const std::string& description) {
    currentCase += ", " + description;
}

void Require(bool met, const char* what) {
    if (!met) {
        std::fprintf(stderr, "torture: failed: %s\n", what);
        PrintCase();
        std::fflush(stderr);
        std::_Exit(1);
    }
}

} // namespace rulecanvas::torture

/// The address sanitizer calls it before it reports.
extern "C" void __asan_on_error();
extern "C" void __asan_on_error() {
    rulecanvas::torture::PrintCase();
}
