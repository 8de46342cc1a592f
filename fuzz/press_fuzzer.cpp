// Presses on many figures: the figures that are near a press answer it as all of them would.
#include "two_scenes.h"

#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr int longestStory = 300;
    FuzzedDataProvider input(data, size);
    rulecanvas::test::TwoScenes scenes([&](int limit) { return input.ConsumeIntegralInRange(0, limit - 1); });
    for (int step = 0; step < longestStory && input.remaining_bytes() > 0; ++step) {
        if (!scenes.Step()) {
            std::abort();
        }
    }
    return 0;
}
