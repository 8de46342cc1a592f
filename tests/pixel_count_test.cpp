#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

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
    const ShapeID shape = Add(R"({"rule":[320,240]})", R"({"FontSize":9,"LineThickness":7})");
    host.container.setColour(shape, Outline::selected, 1, 2, 3);
    EXPECT_EQ(host.Paint(TheView + 1), Lines{});
    EXPECT_EQ(host.Config(shape), "") << "no corners yet";
    const Lines drawn{"text (385,298) \"320*240\" size 9 1,2,3", "rect (200,150)-(600,450) w1 1,2,3 dashed"};
    EXPECT_EQ(host.Paint(), drawn);
    char buffer[] = "####################"; // the text has 19 characters
    EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer, 19), 0U);
    EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer, 20), 1U);
    EXPECT_STREQ(buffer, "{\"rule\":[320,240]}\n");
    host.container.selectShape(shape, false);
    EXPECT_EQ(host.Paint(), drawn) << "always in the selected colour";
    host.container.showHandles(shape);
    EXPECT_EQ(host.Paint().back(), "rect (197,447)-(203,453) w2 1,2,3");
}

TEST_F(PixelCount, IsNeverSmallerThanItCanBeSeen) {
    host.Resize(801, 601); // halves are whole numbers
    Add(R"({"rule":[4,1]})");
    EXPECT_EQ(host.Paint()[1], "rect (397,298)-(402,302) w1 yellow dashed");
}

TEST_F(PixelCount, WaitsUntilVideoAndViewAreKnownAndKeepsTheSizeOfTheVideo) {
    for (const bool videoFirst : {true, false}) {
        host.container.deleteAllShapes();
        host.container.setVideoSize(640, 0);
        host.Resize(0, 0);
        Add(R"({"rule":[320,240]})");
        EXPECT_EQ(host.Paint(), Lines{});
        host.container.setVideoSize(640, videoFirst ? 480 : 0);
        host.Resize(videoFirst ? 0 : 800, 600);
        EXPECT_EQ(host.Paint(), Lines{});
        host.container.setVideoSize(640, 480);
        host.Resize(800, 600);
        EXPECT_EQ(host.Paint()[0], "text (385,298) \"320*240\" size 0 yellow");
    }
    host.container.setVideoSize(64, 48);
    host.Press(600, 450);
    host.Move(400, 300);
    EXPECT_EQ(host.Paint()[0], "text (285,223) \"160*120\" size 0 yellow");
}

TEST_F(PixelCount, IsMeasuredByThePaintsOfADragButNotOfAMove) {
    const ShapeID shape = Add("");
    host.Press(100, 100);
    host.Move(105, 100); // as small as the user likes
    EXPECT_EQ(host.Paint(),
              (Lines{"text (87.5,98) \"4*0\" size 0 yellow", "rect (100,100)-(105,100) w1 yellow dashed"}));
    host.Move(300, 300);
    host.Release(300, 300);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "redraw", "capture off", "state rule 2>3"}));
    EXPECT_EQ(host.Paint()[0], "text (185,198) \"4*0\" size 0 yellow") << "no paint of the drag saw the last step";
    host.Press(300, 300);
    host.Move(301, 300);
    EXPECT_EQ(host.Paint()[0], "text (185.5,198) \"160*160\" size 0 yellow");
    host.Release(301, 300);
    host.Drag({200, 200}, {210, 200});
    EXPECT_EQ(host.Config(shape), R"({"rule":[160,160]})");
}

TEST_F(PixelCount, RefusesWhatIsNoSizeAndReadsNoModeWord) {
    for (const char* config : {R"({"rule":[320]})", "{", R"({"rule":[320,"a"]})"}) {
        EXPECT_EQ(host.Add("PixelCountShape", config), 0U) << config;
    }
    for (const char* word : {"TextOnly", "EnableRBtnDelete"}) {
        Add(R"({"rule":[320,240]})", word);
        host.Paint();
        host.RightPress(400, 300);
    }
    EXPECT_EQ(host.TakeLog(), Lines{});
    EXPECT_EQ(host.Paint().size(), 4U);
}

TEST_F(PixelCount, ForgetsASizeThatWasNotPlacedWhenItIsDrawnAnew) {
    host.container.redrawShape(Add(R"({"rule":[320,240]})"));
    EXPECT_EQ(host.Paint(), Lines{});
}

} // namespace
} // namespace rulecanvas::test
