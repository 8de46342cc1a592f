#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

TEST(Rectangle, IsDrawnByDraggingInAnyDirection) {
    ScenarioHost host;
    const ShapeID shape = host.Add("Rect");

    host.Drag({200, 150}, {100, 50});

    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "capture off", "state rule 2>3"}));
    EXPECT_EQ(host.Paint(), (Lines{"text (100,50) \"\" size 2 yellow", "rect (100,50)-(200,150) w2 yellow",
                                   "rect (97,47)-(103,53) w2 yellow", "rect (197,47)-(203,53) w2 yellow",
                                   "rect (197,147)-(203,153) w2 yellow", "rect (97,147)-(103,153) w2 yellow"}));
    EXPECT_EQ(host.Config(shape), "{\"rule\":[[1024,683],[2048,2048]]}");
}

} // namespace
} // namespace rulecanvas::test
