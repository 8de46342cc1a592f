#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

Lines SmallCrosses(std::initializer_list<PointF> crosses) {
    Lines lines;
    for (const PointF& c : crosses) {
        lines.push_back("line " + Written({c.x - 6, c.y}) + "-" + Written({c.x + 5, c.y}) + " w2 yellow");
        lines.push_back("line " + Written({c.x, c.y - 6}) + "-" + Written({c.x, c.y + 5}) + " w2 yellow");
    }
    return lines;
}

TEST(Cross, IsPlacedByOneClickEach) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("CrossShape", "", "3");
    host.Press(9000, 10); // outside the view
    host.Press(100, 100);
    host.Move(110, -20);
    EXPECT_EQ(host.Paint(), SmallCrosses({{110, 0}})) << "follows the mouse inside the view";
    host.Release(110, -20);
    host.Move(300, 300);
    EXPECT_EQ(host.Paint(), SmallCrosses({{110, -20}})) << "stays where it was let go, even outside";
    host.Click(200, 100);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "redraw", "capture on"})) << "the capture is kept";
    EXPECT_EQ(host.Config(shape), "") << "one is missing";
    host.Click(300.9F, 100);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 2>3"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[[110,-19],[200,100],[300,100]]})");

    host.container.setPointLimits(shape, 2, 0);
    EXPECT_EQ(host.Config(shape), "") << "not as many as the host now wants";
}

TEST(Cross, IsDraggedByItsBoxOrFromAnywhereWhenItIsAlone) {
    ScenarioHost host(GridView, GridView);
    ShapeID shape = host.Add("CrossShape", R"({"rule":[[100,100]]})");
    host.Press(4000, 9000); // outside the view
    host.Press(400, 300);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[400,300]]})") << "jumps to the press";
    host.Move(410.5F, 310);
    host.Move(-1, 310);
    host.Release(500, 500);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 5>3"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[[410,310]]})") << "neither a move outside nor the release counts";

    host.container.deleteShape(shape);
    shape = host.Add("CrossShape", R"({"rule":[[100,100],[108,100],[300,300]]})");
    host.Drag({94, 100}, {50, 50});   // 6 pixels beside the first
    host.Drag({105, 95}, {50, 50});   // in the boxes of the first and the second
    host.Drag({305.5F, 300}, {9, 9}); // beside the third
    host.Drag({295, 305}, {310, 330});
    EXPECT_EQ(host.Config(shape), R"({"rule":[[50,50],[108,100],[310,330]]})");
}

TEST(Cross, ReadsHowManyThereAre) {
    struct Case {
        const char* config;
        const char* word;
        const char* crosses;
    };
    for (const Case& c :
         {Case{R"({"rule":[[1,2],null]})", "7", "[1,2],[0,0]"}, Case{R"({"rule":[]})", "", ""},
          Case{"{}", "2", "[0,0],[0,0]"}, Case{"{}", "-5", "[0,0]"}, Case{"{}", "2000000000", "[0,0]"}}) {
        ScenarioHost host(GridView, GridView);
        const std::string expected = std::string(R"({"rule":[)") + c.crosses + "]}";
        EXPECT_EQ(host.Config(host.Add("CrossShape", c.config, c.word)), expected) << c.config << c.word;
    }
    EXPECT_EQ(ScenarioHost().Add("CrossShape", "{"), 0U);
}

TEST(BigCross, SpansThePictureAtTwoPlacesAndIsWrittenAsBands) {
    const std::string bands = R"({"rule":[[0,2999,8191,3001],[3999,0,4001,8191],[0,199,8191,201],[99,0,101,8191]]})";
    ScenarioHost host(GridView, GridView);
    ShapeID shape = host.Add("BigCrossShape");
    host.container.setPointLimits(shape, 5, 0); // two it stays
    host.Click(4000, 3000);
    EXPECT_EQ(host.Config(shape), "") << "one of two";
    host.Click(100, 200);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "capture on", "state rule 2>3"}));
    const Lines drawn{"line (0,3000)-(8191,3000) w2 yellow",
                      "line (4000,0)-(4000,8191) w2 yellow",
                      "fill-ellipse (3995,2995)-(4005,3005) w2 yellow",
                      "line (0,200)-(8191,200) w2 yellow",
                      "line (100,0)-(100,8191) w2 yellow",
                      "fill-ellipse (95,195)-(105,205) w2 yellow"};
    EXPECT_EQ(host.Paint(), drawn);
    EXPECT_EQ(host.Config(shape), bands);
    host.container.deleteShape(shape);
    shape = host.Add("BigCrossShape", bands);
    EXPECT_EQ(host.Paint(), drawn);

    host.Drag({300, 300}, {400, 400}); // no cross-hair there
    host.Press(4005, 2995);
    EXPECT_EQ(host.Config(shape), bands) << "a press alone moves nothing";
    host.Move(9000, 2000);
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (8186,1995)-(8196,2005) w2 yellow") << "held inside the view";
    host.Release(9000, 2000);
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (8995,1995)-(9005,2005) w2 yellow") << "but let go where the mouse is";
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 5>3"}));

    EXPECT_EQ(host.Add("BigCrossShape", R"({"rule":[[0,1,2,3],[0,1,2,3],[0,1,2,3]]})"), 0U);
    EXPECT_NE(host.Add("BigCrossShape", R"({"rule":[[0,2147483647],[2147483647],[0,0],[0]]})"), 0U);
    EXPECT_NE(host.Add("BigCrossShape", "{}"), 0U) << "complete without any cross-hair";
}

TEST(Markers, KeepTheirCaptionInThePicture) {
    struct Case {
        const char* type;
        PointF press;
        PointF text;
        const char* size;
    };
    for (const Case& c :
         {Case{"CrossShape", {100.9F, 100}, {100, 100}, "24"}, Case{"CrossShape", {772, 588}, {772, 588}, "24"},
          Case{"CrossShape", {773, 589}, {745, 577}, "24"}, Case{"SpotShape", {100, 11}, {105, 6}, "2"},
          Case{"SpotShape", {100, 10}, {105, 11}, "2"}, Case{"SpotShape", {767, 593}, {772, 588}, "2"},
          Case{"SpotShape", {768, 594}, {734, 572}, "2"}}) {
        ScenarioHost host;
        host.container.setCaption(host.Add(c.type), "gate"); // 28 x 12
        host.Click(c.press.x, c.press.y);
        EXPECT_EQ(host.Paint().back(), "text " + Written(c.text) + " \"gate\" size " + c.size + " yellow");
    }
}

TEST(Markers, CopyTheirConfigurationIntoABufferOfItsLength) {
    for (const char* type : {"CrossShape", "SpotShape"}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add(type, R"({"rule":[[1,2]]})");
        char buffer[] = "##################"; // the text has 17 characters
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer, 16), 0U);
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer, 17), 1U);
        EXPECT_STREQ(buffer, "{\"rule\":[[1,2]]}\n#") << "without the terminating zero";
    }
}

TEST(Markers, AndOvalsLeaveNoListenerWhenTheyAreDeletedInAGesture) {
    using Deletion = std::pair<const char*, Lines>;
    for (const auto& [type, log] :
         {Deletion{"OvalShape", {"capture off"}}, Deletion{"CrossShape", {"capture off"}},
          Deletion{"BigCrossShape", {"capture off"}}, Deletion{"SpotShape", {"capture off", "capture off"}}}) {
        ScenarioHost host;
        const ShapeID shape = host.Add(type);
        host.Click(100, 100);
        host.Press(100, 100);
        host.TakeLog();
        host.container.deleteShape(shape);
        host.Send(RULECANVAS_MOUSE_MOVED_EVENT, 110, 110);
        host.Release(110, 110);
        EXPECT_EQ(host.TakeLog(), log) << type;
        EXPECT_EQ(host.Paint(), Lines{}) << type;
    }
}

TEST(Spot, IsPlacedByAClickAndDragged) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("SpotShape");
    host.Click(-1, 100); // outside the view
    host.Press(100, 100);
    host.Move(150, 150);
    host.Release(150, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw"})) << "nothing is reported, nothing follows the mouse";
    EXPECT_EQ(host.Config(shape), R"({"rule":[[100,100]]})");
    host.Press(103, 104); // 5 pixels from the centre
    host.Move(113.7F, 104);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[110,100]]})") << "by whole pixels";
    host.Move(2, 104);
    host.Move(115, 124);
    host.Release(300, 300);
    EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on", "state rule 4>3", "capture off"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[[112,120]]})") << "a step out of the view is refused";

    host.Click(116, 124);
    EXPECT_EQ(host.container.selectedShape(), 0U) << "beside it";
    host.container.setTip(TheView, "tip");
    host.Click(300, 300);
    EXPECT_EQ(host.Paint()[0], "ellipse (107,115)-(117,125) w2 blue") << "an unselected spot answers: no tip is left";
    host.container.selectShape(host.Add("Rect"), false);
    host.Press(112, 120);
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"}) << "the rectangle takes the press";
    EXPECT_EQ(host.container.selectedShape(), shape) << "but the spot that was hit is selected";
}

TEST(Spot, IsAnOutlineOrSolidOfItsRadius) {
    struct Case {
        const char* config;
        const char* word;
        const char* drawn;
    };
    for (const Case& c : {Case{R"({"rule":[[40,50],[1,1]]})", "solid,", "ellipse (35,45)-(45,55) w2 yellow"},
                          Case{R"({"rule":[[40,50]],"radius":8})", "solid", "fill-ellipse (32,42)-(48,58) w2 yellow"},
                          Case{R"({"rule":[[40,50]],"radius":8.0})", "", "ellipse (35,45)-(45,55) w2 yellow"}}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add("SpotShape", c.config, c.word);
        EXPECT_EQ(host.Paint()[0], c.drawn);
        EXPECT_EQ(host.Config(shape), R"({"rule":[[40,50]]})") << "the radius is not written back";
    }
    ScenarioHost host;
    for (const char* refused : {"{", "{}", R"({"rule":null})"}) {
        EXPECT_EQ(host.Add("SpotShape", refused), 0U) << refused;
    }
    EXPECT_NE(host.Add("SpotShape", R"({"rule":[]})"), 0U);
    host.Click(10, 10);
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"});
    EXPECT_EQ(host.Paint(), Lines{}) << "placed, but never drawn";
}

} // namespace
} // namespace rulecanvas::test
