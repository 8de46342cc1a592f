// Figures of one gesture: crosses, spots, ovals and pixel counts.

#include "support/stories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace rulecanvas::test {
namespace {

constexpr const char* Oval = R"({"OvalShape":[[100,100],[200,180]]})";

using Row = std::array<const char*, 3>;

TEST(Cross, IsPlacedByOneClickEach) {
    GridHost host("CrossShape", "", "3");
    host.Press(9000, 10); // outside the view
    host.Press(100, 100);
    host.Move(110, -20); // it stays in the view until it is let go
    EXPECT_EQ(host.Paint(), (Lines{"line (104,0)-(115,0) w2 yellow", "line (110,-6)-(110,5) w2 yellow"}));
    host.Release(110, -20);
    host.Move(300, 300);
    host.Click(200, 100);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "redraw", "capture on"})) << "the capture is kept";
    EXPECT_EQ(host.Config(), "") << "one is missing";
    host.Click(300.9F, 100);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 2>3"}));
    EXPECT_EQ(host.Config(), R"({"rule":[[110,-19],[200,100],[300,100]]})");
    host.container.SetPointLimits(host.shape, 2, 0);
    EXPECT_EQ(host.Config(), "") << "not as many as the host now wants";
}

TEST(Cross, IsFinishedByAClickWhenTheHostWantsFewer) {
    GridHost host("CrossShape", "", "3");
    host.Click(100, 100);
    host.container.SetPointLimits(host.shape, 1, 0);
    host.TakeLog();
    host.Click(200, 200);
    EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>3"}));
    EXPECT_EQ(host.Config(), Rule("100,100"));
}

TEST(Cross, ThatIsLetGoNowhereLiesAtTheBorder) {
    using Places = std::pair<PointF, PointF>;
    for (const auto& [release, press] : {Places{{NAN, 300}, {0, 300}}, Places{{300, NAN}, {300, 0}}}) {
        GridHost host("CrossShape", "", "2");
        host.Click(100, 100);
        host.Press(200, 200);
        host.Release(release.x, release.y);
        host.Drag(press, {400, 400});
        EXPECT_EQ(host.Config(), Rule("100,100 400,400"));
    }
}

TEST(BigCross, SpansThePictureAtTwoPlacesAndIsWrittenAsBands) {
    const std::string bands = R"({"rule":[[0,2999,8191,3001],[3999,0,4001,8191],[0,199,8191,201],[99,0,101,8191]]})";
    ScenarioHost host(GridView, GridView);
    ShapeID shape = host.Add("BigCrossShape");
    host.container.SetPointLimits(shape, 5, 0); // two it stays
    host.Click(4000, 3000);
    EXPECT_EQ(host.Config(shape), "") << "one is missing";
    host.Click(100, 200);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "capture on", "state rule 2>3"}));
    EXPECT_EQ(host.Config(shape), bands);
    host.container.DeleteShape(shape);
    shape = host.Add("BigCrossShape", bands);
    host.Drag({300, 300}, {400, 400}); // no cross-hair there
    host.Press(4005, 2995);            // which alone moves nothing
    EXPECT_EQ(host.Paint(),
              (Lines{"line (0,3000)-(8191,3000) w2 yellow", "line (4000,0)-(4000,8191) w2 yellow",
                     "fill-ellipse (3995,2995)-(4005,3005) w2 yellow", "line (0,200)-(8191,200) w2 yellow",
                     "line (100,0)-(100,8191) w2 yellow", "fill-ellipse (95,195)-(105,205) w2 yellow"}));
    host.Move(9000, 2000);
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (8186,1995)-(8196,2005) w2 yellow") << "held inside the view";
    host.Release(9000, 2000);
    EXPECT_EQ(host.Paint()[2], "fill-ellipse (8995,1995)-(9005,2005) w2 yellow") << "but let go where the mouse is";
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 5>3"}));
}

TEST(Markers, KeepTheirCaptionInThePicture) {
    using Placing = std::tuple<const char*, PointF, const char*>;
    for (const auto& [type, press, text] : {Placing{"CrossShape", {772.9F, 588}, "text (772,588) \"gate\" size 24 "},
                                            Placing{"CrossShape", {773, 589}, "text (745,577) \"gate\" size 24 "},
                                            Placing{"SpotShape", {100, 11}, "text (105,6) \"gate\" size 2 "},
                                            Placing{"SpotShape", {100, 10}, "text (105,11) \"gate\" size 2 "},
                                            Placing{"SpotShape", {767, 593}, "text (772,588) \"gate\" size 2 "},
                                            Placing{"SpotShape", {768, 594}, "text (734,572) \"gate\" size 2 "}}) {
        ScenarioHost host;
        host.container.SetCaption(host.Add(type), "gate"); // 28 x 12
        host.Click(press.x, press.y);
        EXPECT_EQ(host.Paint().back(), text + std::string("yellow"));
    }
}

TEST(Markers, TakeEveryPressWhileOneIsDragged) {
    for (const auto& [type, dragged] : {std::make_pair("CrossShape", "5>3"), std::make_pair("BigCrossShape", "5>3"),
                                        std::make_pair("SpotShape", "4>3")}) {
        GridHost host("Rect", R"({"rule":[[200,200],[400,400]]})");
        const ShapeID marker = host.Add(type);
        host.Click(100, 100);
        host.Click(100, 100); // the second cross-hair
        host.Press(100, 100);
        host.TakeLog();
        host.Press(300, 300); // inside the rectangle
        host.Release(100, 100);
        EXPECT_EQ(host.TakeLog()[0], std::string("state rule ") + dragged) << type;
        EXPECT_NE(host.Config(marker), "");
    }
}

TEST(Figures, LeaveNoListenerWhenTheyAreDeletedInAGesture) {
    for (const char* type : {"CrossShape", "BigCrossShape", "SpotShape", "OvalShape", "XLineShape"}) {
        FigureHost host(type);
        host.Click(100, 100);
        host.Press(100, 100);
        host.TakeLog();
        host.container.DeleteShape(host.shape);
        host.Send(RULECANVAS_MOUSE_MOVED_EVENT, 110, 110);
        host.Release(110, 110);
        // A spot clears itself on its way out, too.
        EXPECT_EQ(host.TakeLog(), Lines(*type == 'S' ? 2 : 1, "capture off")) << type;
        EXPECT_EQ(host.Paint(), Lines{}) << type;
    }
}

TEST(Spot, IsHitThroughARectangleButDoesNotTakeThePress) {
    GridHost host("SpotShape", Rule("112,120"));
    host.Click(117, 121); // beside it
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.container.SetTip(TheView, "tip");
    host.Click(300, 300);
    EXPECT_EQ(host.Paint()[0], "ellipse (107,115)-(117,125) w2 blue") << "an unselected spot answers: no tip is left";
    host.container.SelectShape(host.Add("Rect"), false);
    host.Press(112, 120);
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"}) << "the rectangle takes the press";
    EXPECT_EQ(host.container.SelectedShape(), host.shape) << "but the spot that was hit is selected";
}

TEST(Spot, IsAnOutlineOrSolidOfItsRadius) {
    for (const auto& [config, word, drawn] :
         {Row{R"({"rule":[[40,50],[1,1]]})", "solid,", "ellipse (35,45)-(45,55) w2 yellow"},
          Row{R"({"rule":[[40,50]],"radius":8})", "solid", "fill-ellipse (32,42)-(48,58) w2 yellow"},
          Row{R"({"rule":[[40,50]],"radius":8.0})", "", "ellipse (35,45)-(45,55) w2 yellow"}}) {
        GridHost host("SpotShape", config, word);
        EXPECT_EQ(host.Paint()[0], drawn);
    }
    ScenarioHost host;
    EXPECT_NE(host.Add("SpotShape", R"({"rule":[]})"), 0U);
    host.Click(10, 10);
    EXPECT_EQ(host.Paint(), Lines{}) << "placed, but never drawn";
}

TEST(Oval, IsDrawnByDraggingAndKeepsTheCapture) {
    FigureHost host("OvalShape");
    EXPECT_EQ(host.Paint(), Lines{"ellipse (0,0)-(0,0) w2 yellow"}) << "a waiting oval draws its empty rubber band";
    host.Press(200.5F, 150);
    EXPECT_TRUE(host.container.RedrawShape(host.shape)) << "an oval is not restarted: the drag goes on";
    host.Move(90, 900);
    EXPECT_EQ(host.Paint(), Lines{"ellipse (200.5,150)-(90,900) w2 yellow"}) << "the rubber band is not clamped";
    host.Release(90, 900);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "state rule 2>3", "capture on"}));
    EXPECT_EQ(host.Paint(), (Lines{"ellipse (90,150)-(200,600) w2 yellow", "text (90,150) \"\" size 2 yellow",
                                   "rect (87,147)-(93,153) w2 yellow", "rect (142,147)-(148,153) w2 yellow",
                                   "rect (197,147)-(203,153) w2 yellow", "rect (197,372)-(203,378) w2 yellow",
                                   "rect (197,597)-(203,603) w2 yellow", "rect (142,597)-(148,603) w2 yellow",
                                   "rect (87,597)-(93,603) w2 yellow", "rect (87,372)-(93,378) w2 yellow"}));
}

TEST(Oval, ThatIsHiddenShowsADragWithAnExtentInEveryView) {
    GridHost host("OvalShape");
    Act(host, "click 10 10 release 20 30");
    host.container.ShowShape(host.shape, false);
    EXPECT_EQ(host.Paint(TheView + 1)[0], "ellipse (10,10)-(20,30) w2 yellow");
    host.Drag({15, 20}, {25, 30});
    EXPECT_EQ(host.Paint(), Lines{}) << "a move ends at its anchor";
}

TEST(Oval, LosesItsHandlesByAPressBesideIt) {
    GridHost host("OvalShape", Oval);
    host.Drag({106, 106}, {116.5F, 126.5F});
    host.container.SelectShape(host.shape, false);
    host.container.ShowHandles(host.shape);
    host.Click(300, 300); // which hides the handles of an unselected oval, too
    EXPECT_EQ(host.Paint(),
              (Lines{"ellipse (110.5,120.5)-(210.5,200.5) w2 blue", "text (110.5,120.5) \"\" size 2 blue"}));
}

TEST(Oval, ThatIsHalfIsBusy) {
    ScenarioHost host(GridView, GridView);
    EXPECT_EQ(host.Config(host.Add("OvalShape", R"({"OvalShape":[[1,2],null]})", R"({"LineThickness":5})")), "");
    host.Click(100, 100);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "and cannot be drawn";
    EXPECT_EQ(host.Paint(), Lines{"ellipse (0,0)-(0,0) w2 yellow"}) << "and no oval reads a style";
}

TEST(PixelCount, IsPlacedInTheMiddleByTheFirstPaint) {
    ScenarioHost host;
    host.container.SetVideoSize(640, 480);
    const ShapeID shape = host.Add("PixelCountShape", R"({"rule":[320,240]})", R"({"FontSize":9,"LineThickness":7})");
    EXPECT_EQ(host.Paint(TheView + 1), Lines{});
    EXPECT_EQ(host.Config(shape), "") << "no corners yet";
    host.container.SelectShape(shape, false); // and yet in the selected colour
    host.container.ShowHandles(shape);
    EXPECT_EQ(host.Paint(),
              (Lines{"text (385,298) \"320*240\" size 9 yellow", "rect (200,150)-(600,450) w1 yellow dashed",
                     "rect (197,147)-(203,153) w2 yellow", "rect (597,147)-(603,153) w2 yellow",
                     "rect (597,447)-(603,453) w2 yellow", "rect (197,447)-(203,453) w2 yellow"}));
    host.Resize(801, 601); // halves are whole numbers
    host.Add("PixelCountShape", R"({"rule":[4,1]})");
    const Lines drawn = host.Paint();
    EXPECT_EQ(std::count(drawn.begin(), drawn.end(), "rect (397,298)-(402,302) w1 yellow dashed"), 1) << "can be seen";
}

TEST(PixelCount, WaitsUntilVideoAndViewAreKnownAndKeepsTheSizeOfTheVideo) {
    using Sizes = std::array<int, 3>; // of the video, of the view at first and of the view at the first paint
    ScenarioHost host;
    for (const auto& [video, atFirst, atPaint] : {Sizes{480, 0, 0}, Sizes{0, 800, 800}, Sizes{480, 800, 0}}) {
        host.container.DeleteAllShapes();
        host.container.SetVideoSize(640, video);
        host.Resize(atFirst, 600);
        host.container.ShowHandles(host.Add("PixelCountShape", R"({"rule":[320,240]})"), false);
        host.Resize(atPaint, 600);
        EXPECT_EQ(host.Paint(), Lines{});
        host.container.SetVideoSize(640, 480);
        host.Resize(800, 600);
        EXPECT_EQ(host.Paint()[0], "text (385,298) \"320*240\" size 0 yellow");
    }
    host.container.SetVideoSize(64, 48);
    host.Press(600, 450);
    host.Move(400, 300);
    EXPECT_EQ(host.Paint()[0], "text (285,223) \"160*120\" size 0 yellow");
}

TEST(PixelCount, IsMeasuredByThePaintsOfADragButNotOfAMove) {
    ScenarioHost host;
    host.container.SetVideoSize(640, 480);
    const ShapeID shape = host.Add("PixelCountShape");
    host.Press(100, 100);
    host.Move(105, 100); // as small as the user likes
    EXPECT_EQ(host.Paint()[0], "text (87.5,98) \"4*0\" size 0 yellow");
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
    host.container.RedrawShape(shape);
    EXPECT_EQ(host.Paint(), Lines{});
}

TEST(PixelCount, ReadsNoModeWordAndForgetsAPlaceWhenItIsDrawnAnew) {
    ScenarioHost host;
    host.container.SetVideoSize(640, 480);
    for (const char* word : {"TextOnly", "EnableRBtnDelete"}) {
        host.container.ShowHandles(host.Add("PixelCountShape", R"({"rule":[320,240]})", word), false);
    }
    host.container.RedrawShape(host.Add("PixelCountShape", R"({"rule":[320,240]})"));
    host.Paint();
    host.RightPress(400, 300);
    EXPECT_EQ(host.Paint().size(), 4U);
}

} // namespace
} // namespace rulecanvas::test
