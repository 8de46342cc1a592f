#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

/// The size text and the outline, without handles.
Lines Measured(const std::string& size, const PointF& textAt, const PointF& topLeft, const PointF& bottomRight) {
    return {"text " + Written(textAt) + " \"" + size + "\" size 0 yellow",
            "rect " + Written(topLeft) + "-" + Written(bottomRight) + " w1 yellow dashed"};
}

/// In a view of 800 x 600 that shows a video of 640 x 480.
struct PixelCount : ::testing::Test {
    ScenarioHost host;

    PixelCount() { host.container.setVideoSize(640, 480); }

    ShapeID Add(const char* config, const std::string& option = "") {
        const ShapeID shape = host.Add("PixelCountShape", config, option);
        host.container.showHandles(shape, false);
        return shape;
    }
};

TEST_F(PixelCount, IsPlacedInTheMiddleByTheFirstPaint) {
    const ShapeID shape = Add(R"({"rule":[320,240]})");
    EXPECT_EQ(host.Config(shape), "") << "no corners yet";
    EXPECT_EQ(host.Paint(TheView + 1), Lines{});
    EXPECT_EQ(host.Config(shape), "");
    EXPECT_EQ(host.Paint(), Measured("320*240", {385, 298}, {200, 150}, {600, 450}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[320,240]})");
    char buffer[] = "####################";
    EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer, 19), 0U);
    EXPECT_STREQ(buffer, "####################");
    EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer, 20), 1U);

    host.container.showHandles(shape);
    EXPECT_EQ(host.Paint().size(), 6U);
    EXPECT_EQ(host.Paint()[2], "rect (197,147)-(203,153) w2 yellow");
    host.container.selectShape(shape, false);
    EXPECT_EQ(host.Paint()[1], "rect (200,150)-(600,450) w1 yellow dashed") << "always in the selected colour";
    host.container.showShape(shape, false);
    EXPECT_EQ(host.Paint(), Lines{});
}

TEST_F(PixelCount, IsNeverSmallerThanItCanBeSeenNorLargerThanTheView) {
    host.Resize(801, 601); // halves are whole numbers
    Add(R"({"rule":[4,1]})");
    EXPECT_EQ(host.Paint(), Measured("4*1", {384.5F, 298}, {397, 298}, {402, 302}));
    host.container.deleteAllShapes();
    Add(R"({"rule":[2000000000,-7]})");
    EXPECT_EQ(host.Paint(), Measured("2000000000*-7", {385.5F, 298}, {0, 298}, {801, 302}));
}

TEST_F(PixelCount, WaitsUntilTheVideoIsKnownAndKeepsThatSize) {
    host.container.setVideoSize(640, 0);
    Add(R"({"rule":[320,240]})");
    EXPECT_EQ(host.Paint(), Lines{});
    host.container.setVideoSize(640, 480);
    EXPECT_EQ(host.Paint()[0], "text (385,298) \"320*240\" size 0 yellow");
    host.container.setVideoSize(64, 48);
    host.Press(600, 450);
    host.Move(400, 300);
    EXPECT_EQ(host.Paint()[0], "text (285,223) \"160*120\" size 0 yellow") << "measured by the size it took over";
}

TEST_F(PixelCount, WaitsUntilTheViewIsKnown) {
    host.Resize(0, 0);
    Add(R"({"rule":[320,240]})");
    EXPECT_EQ(host.Paint(), Lines{});
    host.Resize(800, 600);
    EXPECT_EQ(host.Paint(), Measured("320*240", {385, 298}, {200, 150}, {600, 450}));
}

TEST_F(PixelCount, IsMeasuredByPaintsOfADragButNotOfAMove) {
    const ShapeID shape = Add(R"({"rule":[320,240]})");
    host.Paint();
    host.Press(600, 450);
    host.Move(501, 400);
    EXPECT_EQ(host.Config(shape), R"({"rule":[320,240]})") << "no paint yet";
    EXPECT_EQ(host.Paint()[0], "text (335.5,273) \"240*200\" size 0 yellow");
    host.Move(701, 400);
    host.Release(701, 400);
    host.Paint();
    EXPECT_EQ(host.Config(shape), R"({"rule":[240,200]})") << "what no paint of the drag saw is not measured";
    EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on", "state rule 5>3", "capture off"}));
    host.Press(300, 300);
    host.Move(310, 300);
    EXPECT_EQ(host.Paint()[0], "text (445.5,273) \"240*200\" size 0 yellow");
}

TEST_F(PixelCount, MayBeDrawnAsSmallAsTheUserLikes) {
    const ShapeID shape = Add("");
    host.Press(100, 100);
    host.Move(105, 100);
    EXPECT_EQ(host.Paint(), Measured("4*0", {87.5F, 98}, {100, 100}, {105, 100}));
    host.Release(105, 100);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "capture off", "state rule 2>3"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[4,0]})");
}

TEST_F(PixelCount, ForgetsAnUnplacedSizeWhenItIsDrawnAnew) {
    const ShapeID shape = Add(R"({"rule":[320,240]})");
    host.container.redrawShape(shape);
    EXPECT_EQ(host.Paint(), Lines{});
}

TEST_F(PixelCount, ReadsAStyleButNoModeWord) {
    ShapeID shape = Add(R"({"rule":[320,240]})", R"({"FontSize":9,"LineThickness":7})");
    host.container.setColour(shape, Outline::selected, 1, 2, 3);
    EXPECT_EQ(host.Paint(),
              (Lines{"text (385,298) \"320*240\" size 9 1,2,3", "rect (200,150)-(600,450) w1 1,2,3 dashed"}));
    for (const char* word : {"TextOnly", "EnableRBtnDelete"}) {
        host.container.deleteAllShapes();
        Add(R"({"rule":[320,240]})", word);
        EXPECT_EQ(host.Paint().size(), 2U);
        host.TakeLog();
        host.RightPress(400, 300);
        EXPECT_EQ(host.TakeLog(), Lines{});
    }
    for (const char* config : {R"({"rule":[320]})", R"({"rule":[1,2,3]})", R"({"Rule":[320,240]})", "{", "[320,240]",
                               R"({"rule":[320,"a"]})"}) {
        EXPECT_EQ(host.Add("PixelCountShape", config), 0U) << config;
    }
}

} // namespace
} // namespace rulecanvas::test
