// A press that asks only the figures near it ends as one that asks every figure.

#include "support/two_scenes.h"

#include <gtest/gtest.h>

#include <random>

namespace rulecanvas::test {
namespace {

TEST(PressIndex, ChangesNothingButTheTime) {
    for (unsigned seed = 0; seed < 30; ++seed) {
        std::mt19937 random(seed);
        TwoScenes scenes([&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); });
        for (int step = 0; step < 400; ++step) {
            ASSERT_TRUE(scenes.Step()) << "seed " << seed << ", step " << step;
        }
    }
}

} // namespace
} // namespace rulecanvas::test
