#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

constexpr const char* Oval = R"({"OvalShape":[[100,100],[200,180]]})";
const Lines Moved{"select rule", "capture on", "state rule 4>3", "capture off"};

TEST(Oval, IsDrawnByDraggingAndKeepsTheCapture) {
    ScenarioHost host;
    const ShapeID shape = host.Add("OvalShape");
    EXPECT_EQ(host.Paint(), Lines{"ellipse (0,0)-(0,0) w2 yellow"}) << "a waiting oval draws its empty rubber band";
    host.Press(200.5F, 150);
    EXPECT_EQ(host.Paint(), Lines{"ellipse (200.5,150)-(200.5,150) w2 yellow"});
    EXPECT_TRUE(host.container.redrawShape(shape)) << "an oval is not restarted: the drag goes on";
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

TEST(Oval, GoesOnFromAClick) {
    ScenarioHost host(GridView, GridView);
    ShapeID shape = host.Add("OvalShape");
    host.Click(100, 100);
    host.Move(101, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "capture on"})) << "the button is up, the oval listens";
    host.Release(101, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>3", "capture on"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[[100,100],[101,150]]})") << "no oval is too narrow to be drawn";

    host.container.deleteShape(shape);
    shape = host.Add("OvalShape");
    host.Click(10, 10);
    host.Release(20, 30);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 1>3", "capture on"})) << "without a move between";
    host.container.showShape(shape, false);
    EXPECT_EQ(host.Paint(TheView + 1)[0], "ellipse (10,10)-(20,30) w2 yellow")
        << "a drag with an extent shows, hidden or not, in every view";
    host.Drag({15, 20}, {25, 30});
    EXPECT_EQ(host.Paint(), Lines{}) << "a move ends at its anchor";
}

TEST(Oval, IsResizedByEachOfItsEightHandles) {
    struct Case {
        PointF grab;
        PointF drop;
        const char* corners;
    };
    for (const Case& c :
         {Case{{104, 96}, {50, 60}, "[50,60],[200,180]"}, Case{{150, 100}, {190, 90}, "[100,90],[200,180]"},
          Case{{200, 100}, {260, 90}, "[100,90],[260,180]"}, Case{{200, 140}, {260, 60}, "[100,100],[260,180]"},
          Case{{200, 180}, {9000, 300}, "[100,100],[8191,300]"}, Case{{150, 180}, {90, 300}, "[100,100],[200,300]"},
          Case{{100, 180}, {-50, 210}, "[0,100],[200,210]"}, Case{{100, 140}, {150, 60}, "[150,100],[200,180]"},
          Case{{200, 180}, {103.9F, 300}, "[100,100],[200,180]"}, Case{{200, 180}, {300, 103}, "[100,100],[200,180]"},
          Case{{200, 180}, {104, 96}, "[100,96],[104,100]"}}) {
        ScenarioHost host(GridView, GridView);
        host.Add("Rect", R"({"rule":[[0,0],[8191,8191]]})"); // whose inside claims less
        const ShapeID shape = host.Add("OvalShape", Oval);
        host.Drag(c.grab, c.drop);
        EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on", "state rule 5>3", "capture off"}));
        EXPECT_EQ(host.Config(shape), std::string(R"({"rule":[)") + c.corners + "]}") << Written(c.grab);
    }
}

TEST(Oval, IsMovedByTheInsideOfItsRectangle) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("OvalShape", Oval);
    host.Press(106, 106); // outside the ellipse
    host.Move(116.5F, 126.5F);
    host.Move(5, 126.5F);
    host.Release(5, 126.5F);
    EXPECT_EQ(host.TakeLog(), Moved);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[110,120],[210,200]]})") << "a step out of the view is refused";
    host.Click(108, 140); // on the edge, but outside
    host.Click(300, 300);
    host.container.showHandles(shape);
    host.Click(300, 300); // also hides the handles of an unselected oval
    EXPECT_EQ(host.Paint(),
              (Lines{"ellipse (110.5,120.5)-(210.5,200.5) w2 blue", "text (110.5,120.5) \"\" size 2 blue"}));
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.Click(150, 150);
    EXPECT_EQ(host.TakeLog(), Moved);
}

TEST(Oval, ReadsOneKeyAndWritesAnother) {
    using Texts = std::pair<const char*, const char*>;
    for (const auto& [config, readBack] :
         {Texts{R"({"OvalShape":[[300,200],[100,9999]]})", R"({"rule":[[300,200],[100,9999]]})"},
          Texts{R"({"OvalShape":[null,[5,6]]})", R"({"rule":[[0,0],[5,6]]})"},
          Texts{R"({"OvalShape":[[1,2],null]})", ""}}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add("OvalShape", config, R"({"LineThickness":5})");
        EXPECT_NE(shape, 0U);
        EXPECT_EQ(host.Config(shape), readBack);
    }
    ScenarioHost host(GridView, GridView);
    for (const char* refused : {R"({"rule":[[100,100],[200,180]]})", R"({"OvalShape":[[100,100]]})", "["}) {
        EXPECT_EQ(host.Add("OvalShape", refused), 0U) << refused;
    }
    host.Add("OvalShape", R"({"OvalShape":[[1,2],null]})", R"({"LineThickness":5})");
    host.Click(100, 100);
    host.Move(200, 200);
    EXPECT_EQ(host.TakeLog(), Lines{"redraw"}) << "half an oval is busy and cannot be drawn";
    EXPECT_EQ(host.Paint(), Lines{"ellipse (0,0)-(0,0) w2 yellow"}) << "and no oval reads a style";
}

} // namespace
} // namespace rulecanvas::test
