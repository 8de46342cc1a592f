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
    host.Press(9000, 10);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "outside the view";
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
    host.container.selectShape(shape, false);
    EXPECT_EQ(host.Paint(), SmallCrosses({{110, -20}, {200, 100}, {300.9F, 100}})) << "always in the selected colour";
    EXPECT_EQ(host.Paint(TheView + 1), Lines{});

    host.container.setPointLimits(shape, 2, 0);
    EXPECT_EQ(host.Config(shape), "") << "not as many as the host now wants";
    EXPECT_TRUE(host.container.redrawShape(shape));
    EXPECT_EQ(host.TakeLog(), Lines{"capture off"});
    EXPECT_EQ(host.Paint(), Lines{});
    host.Click(10, 10);
    host.Click(20, 20);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[10,10],[20,20]]})");
}

TEST(Cross, IsDraggedByItsBoxOrFromAnywhereWhenItIsAlone) {
    ScenarioHost host(GridView, GridView);
    ShapeID shape = host.Add("CrossShape", R"({"rule":[[100,100]]})");
    host.Press(4000, 9000);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "outside the view";
    host.Press(400, 300);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[400,300]]})") << "jumps to the press";
    host.Move(410.5F, 310);
    host.Move(-1, 310);
    host.Release(500, 500);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 5>3"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[[410,310]]})") << "neither a move outside nor the release counts";
    host.container.deleteShape(shape);

    shape = host.Add("CrossShape", R"({"rule":[[100,100],[108,100],[300,300]]})");
    host.Drag({94, 100}, {50, 50});
    EXPECT_EQ(host.TakeLog(), Lines{}) << "6 pixels beside the first";
    host.Drag({105, 95}, {50, 50}); // in the boxes of the first and the second
    host.Drag({305.5F, 300}, {350, 350});
    host.Drag({295, 305}, {310, 330});
    EXPECT_EQ(host.Config(shape), R"({"rule":[[50,50],[108,100],[310,330]]})");
}

TEST(Cross, ReadsHowManyThereAre) {
    struct Case {
        const char* config;
        const char* word;
        const char* readBack;
    };
    for (const Case& c : {Case{R"({"rule":[[1,2],[3,4]]})", "7", R"({"rule":[[1,2],[3,4]]})"},
                          Case{R"({"rule":[[1,2],null]})", "", R"({"rule":[[1,2],[0,0]]})"},
                          Case{R"({"rule":[]})", "", R"({"rule":[]})"}, Case{"{}", "2", R"({"rule":[[0,0],[0,0]]})"},
                          Case{"[]", "", R"({"rule":[[0,0]]})"}, Case{"{}", "-5", R"({"rule":[[0,0]]})"},
                          Case{"{}", "2000000000", R"({"rule":[[0,0]]})"}, Case{"{}", "1025", R"({"rule":[[0,0]]})"},
                          Case{"{}", "9999999999999999999999", R"({"rule":[[0,0]]})"}}) {
        ScenarioHost host(GridView, GridView);
        EXPECT_EQ(host.Config(host.Add("CrossShape", c.config, c.word)), c.readBack) << c.config << c.word;
    }
    ScenarioHost host;
    host.Add("CrossShape", "{}", "1024");
    EXPECT_EQ(host.Paint().size(), 2U * 1024U);
    EXPECT_EQ(host.Add("CrossShape", "{"), 0U);
    EXPECT_EQ(host.Add("CrossShape", R"({"rule":[["a",1]]})"), 0U);
}

TEST(Cross, KeepsItsCaptionInThePicture) {
    struct Case {
        PointF press;
        PointF text;
    };
    for (const Case& c :
         {Case{{100.9F, 100}, {100, 100}}, Case{{772, 588}, {772, 588}}, Case{{773, 589}, {745, 577}}}) {
        ScenarioHost host;
        host.container.setCaption(host.Add("CrossShape", R"({"rule":[[0,0]]})"), "gate");
        host.Click(c.press.x, c.press.y);
        EXPECT_EQ(host.Paint().back(), "text " + Written(c.text) + " \"gate\" size 24 yellow");
    }
}

TEST(BigCross, SpansThePictureAtTwoPlaces) {
    ScenarioHost host(GridView, 4095);
    const ShapeID shape = host.Add("BigCrossShape");
    host.Click(8191, 100);
    EXPECT_EQ(host.Config(shape), "") << "one of two";
    const Lines first{"line (0,100)-(8191,100) w2 yellow", "line (8191,0)-(8191,4095) w2 yellow",
                      "fill-ellipse (8186,95)-(8196,105) w2 yellow"};
    EXPECT_EQ(host.Paint(), first);
    host.container.setPointLimits(shape, 5, 0); // two it stays
    host.Click(200, 300);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "capture on", "state rule 2>3"}));
    Lines both = first;
    both.insert(both.end(), {"line (0,300)-(8191,300) w2 yellow", "line (200,0)-(200,4095) w2 yellow",
                             "fill-ellipse (195,295)-(205,305) w2 yellow"});
    EXPECT_EQ(host.Paint(), both);
}

TEST(BigCross, IsWrittenAsBandsAndReadFromThem) {
    const std::string bands = R"({"rule":[[0,2999,8191,3001],[3999,0,4001,8191],[0,199,8191,201],[99,0,101,8191]]})";
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("BigCrossShape", bands);
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (3995,2995)-(4005,3005) w2 yellow");
    EXPECT_EQ(host.Config(shape), bands);

    host.Drag({300, 300}, {400, 400});
    EXPECT_EQ(host.TakeLog(), Lines{}) << "no cross-hair there";
    host.Press(4005, 2995);
    EXPECT_EQ(host.Config(shape), bands) << "a press alone moves nothing";
    host.Move(9000, 2000);
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (8186,1995)-(8196,2005) w2 yellow") << "held inside the view";
    host.Release(9000, 2000);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 5>3"}));
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (8995,1995)-(9005,2005) w2 yellow") << "but let go where the mouse is";

    for (const char* refused :
         {R"({"rule":[[0,1,2,3],[0,1,2,3],[0,1,2,3]]})", R"({"rule":{}})", R"({"rule":[1,2,3,4]})", "{"}) {
        EXPECT_EQ(host.Add("BigCrossShape", refused), 0U) << refused;
    }
    EXPECT_NE(host.Add("BigCrossShape", R"({"rule":[[0,2147483647],[2147483647],[0,0],[0]]})"), 0U);
    host.container.deleteAllShapes();
    EXPECT_NE(host.Add("BigCrossShape", "{}"), 0U);
    EXPECT_EQ(host.Paint(), Lines{}) << "complete without any cross-hair";
    host.Click(10, 10);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(Markers, CopyTheirConfigurationIntoABufferOfItsLength) {
    struct Case {
        const char* type;
        const char* config;
    };
    for (const Case& c : {Case{"CrossShape", R"({"rule":[[1,2]]})"}, Case{"SpotShape", R"({"rule":[[1,2]]})"},
                          Case{"BigCrossShape", R"({"rule":[[0,1,8191,3],[1,0,3,8191],[0,1,8191,3],[1,0,3,8191]]})"}}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add(c.type, c.config);
        const std::string text = std::string(c.config) + "\n";
        const int32_t length = static_cast<int32_t>(text.size());
        std::string buffer(text.size() + 1, '#');
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer.data(), length - 1), 0U);
        EXPECT_EQ(buffer, std::string(text.size() + 1, '#'));
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer.data(), length), 1U);
        EXPECT_EQ(buffer, text + '#');
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, nullptr, length), 0U);
    }
}

TEST(Markers, LeaveNoListenerWhenTheyAreDeletedInAGesture) {
    for (const char* type : {"CrossShape", "BigCrossShape", "SpotShape"}) {
        ScenarioHost host;
        const ShapeID shape = host.Add(type);
        host.Click(100, 100);
        host.Press(100, 100);
        host.container.deleteShape(shape);
        host.TakeLog();
        host.Send(RULECANVAS_MOUSE_MOVED_EVENT, 110, 110);
        host.Release(110, 110);
        EXPECT_EQ(host.TakeLog(), Lines{}) << type;
        EXPECT_EQ(host.Paint(), Lines{}) << type;
    }
}

TEST(Spot, IsPlacedByAClickAndDragged) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("SpotShape");
    host.Click(-1, 100);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "outside the view";
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
    EXPECT_TRUE(host.container.redrawShape(shape));
    EXPECT_EQ(host.TakeLog(), Lines{"capture off"});
    EXPECT_EQ(host.Config(shape), "");
    host.Click(10, 10);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[10,10]]})");
    host.TakeLog();
    host.container.deleteAllShapes();
    EXPECT_EQ(host.TakeLog(), Lines{"capture off"}) << "the capture of the click is given back at the end";
}

TEST(Spot, AnswersAPressBesideItEvenWhenItIsNotSelected) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("SpotShape", R"({"rule":[[100,100]]})");
    host.Click(104, 104);
    EXPECT_EQ(host.container.selectedShape(), 0U);
    EXPECT_EQ(host.Paint()[0], "ellipse (95,95)-(105,105) w2 blue");
    host.container.setTip(TheView, "tip");
    host.Click(300, 300);
    EXPECT_EQ(host.Paint().size(), 2U) << "the press hit something: the tip is gone";
    const ShapeID waiting = host.Add("Rect");
    host.container.selectShape(waiting, false);
    host.Press(100, 100);
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"}) << "the busy rectangle takes the press";
    EXPECT_EQ(host.container.selectedShape(), shape) << "the spot that was hit is selected all the same";
}

TEST(Spot, IsAnOutlineOrSolidOfItsRadius) {
    struct Case {
        const char* config;
        const char* word;
        Lines drawn;
    };
    for (const Case& c : {Case{R"({"rule":[[40,50],[1,1]]})",
                               "solid,",
                               {"ellipse (35,45)-(45,55) w2 yellow", "text (45,45) \"\" size 2 yellow"}},
                          Case{R"({"rule":[[40,50]],"radius":8})",
                               "solid",
                               {"fill-ellipse (32,42)-(48,58) w2 yellow", "text (48,42) \"\" size 2 yellow"}},
                          Case{R"({"rule":[[40,50]],"radius":8.0})",
                               R"({"LineThickness":5})",
                               {"ellipse (35,45)-(45,55) w2 yellow", "text (45,45) \"\" size 2 yellow"}}}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add("SpotShape", c.config, c.word);
        EXPECT_EQ(host.Paint(), c.drawn);
        EXPECT_EQ(host.Config(shape), R"({"rule":[[40,50]]})") << "the radius is not written back";
    }
    ScenarioHost host;
    for (const char* refused : {"{", "{}", R"({"rule":null})", R"({"rule":[5]})"}) {
        EXPECT_EQ(host.Add("SpotShape", refused), 0U) << refused;
    }
    EXPECT_NE(host.Add("SpotShape", R"({"rule":[]})"), 0U);
    host.Click(10, 10);
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"});
    EXPECT_EQ(host.Paint(), Lines{}) << "placed, but never drawn";
}

TEST(Spot, KeepsItsCaptionInThePicture) {
    struct Case {
        PointF spot;
        PointF text;
    };
    for (const Case& c : {Case{{100, 100}, {105, 95}}, Case{{100, 11}, {105, 6}}, Case{{100, 10}, {105, 11}},
                          Case{{767, 100}, {772, 95}}, Case{{768, 100}, {734, 95}}, Case{{100, 593}, {105, 588}},
                          Case{{100, 594}, {105, 572}}}) {
        ScenarioHost host;
        const ShapeID shape = host.Add("SpotShape");
        host.container.setCaption(shape, "gate"); // 28 x 12
        host.Click(c.spot.x, c.spot.y);
        EXPECT_EQ(host.Paint()[1], "text " + Written(c.text) + " \"gate\" size 2 yellow") << Written(c.spot);
    }
}

} // namespace
} // namespace rulecanvas::test
