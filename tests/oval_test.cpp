#include "support/scenario_host.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

constexpr const char* Oval = R"({"OvalShape":[[100,100],[200,180]]})";
const Lines Resized{"select rule", "capture on", "state rule 5>3", "capture off"};
const Lines Moved{"select rule", "capture on", "state rule 4>3", "capture off"};

Lines SelectedOval(const PointF& topLeft, const PointF& bottomRight) {
    const float middleX = (topLeft.x + bottomRight.x) / 2;
    const float middleY = (topLeft.y + bottomRight.y) / 2;
    Lines lines{"ellipse " + Written(topLeft) + "-" + Written(bottomRight) + " w2 yellow",
                "text " + Written(topLeft) + " \"\" size 2 yellow"};
    for (const PointF& handle :
         {topLeft, PointF{middleX, topLeft.y}, PointF{bottomRight.x, topLeft.y}, PointF{bottomRight.x, middleY},
          bottomRight, PointF{middleX, bottomRight.y}, PointF{topLeft.x, bottomRight.y}, PointF{topLeft.x, middleY}}) {
        lines.push_back("rect " + Written({handle.x - 3, handle.y - 3}) + "-" + Written({handle.x + 3, handle.y + 3}) +
                        " w2 yellow");
    }
    return lines;
}

TEST(Oval, IsDrawnByDraggingAndKeepsTheCapture) {
    ScenarioHost host;
    const ShapeID shape = host.Add("OvalShape");
    EXPECT_EQ(host.Paint(), Lines{"ellipse (0,0)-(0,0) w2 yellow"}) << "a waiting oval draws its empty rubber band";

    host.Press(200.5F, 150);
    EXPECT_EQ(host.Paint(), Lines{"ellipse (200.5,150)-(200.5,150) w2 yellow"});
    host.Move(90, 900);
    EXPECT_EQ(host.Paint(), Lines{"ellipse (200.5,150)-(90,900) w2 yellow"}) << "the rubber band is not clamped";
    host.Release(90, 900);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "state rule 2>3", "capture on"}));
    EXPECT_EQ(host.Paint(), SelectedOval({90, 150}, {200, 600})) << "the oval is";
    host.Move(300, 300);
    host.Release(300, 300);
    EXPECT_EQ(host.TakeLog(), Lines{"redraw"}) << "let go";
    EXPECT_EQ(host.container.selectedShape(), shape);
}

TEST(Oval, GoesOnFromAClick) {
    ScenarioHost host(GridView, GridView);
    ShapeID shape = host.Add("OvalShape");
    host.Click(9000, -5); // no check of the point
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"});
    EXPECT_EQ(host.Config(shape), "");
    host.Press(100, 100);
    host.Release(100, 100);
    host.Move(101, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "capture on"})) << "the button is up, the oval listens";
    EXPECT_EQ(host.Paint(), Lines{"ellipse (100,100)-(101,150) w2 yellow"});
    host.Release(101, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>3", "capture on"}));
    EXPECT_EQ(host.Config(shape), R"({"rule":[[100,100],[101,150]]})") << "no oval is too narrow to be drawn";
    host.container.deleteShape(shape);

    shape = host.Add("OvalShape");
    host.Click(10, 10);
    host.Release(20, 30);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "state rule 1>3", "capture on"})) << "without a move between";
    EXPECT_EQ(host.Config(shape), R"({"rule":[[10,10],[20,30]]})");
    host.container.showShape(shape, false);
    EXPECT_EQ(host.Paint(), SelectedOval({10, 10}, {20, 30})) << "from the click to the release";
}

TEST(Oval, IsResizedByEachOfItsEightHandles) {
    struct Case {
        PointF grab;
        PointF drop;
        const char* config;
    };
    for (const Case& c : {Case{{104, 96}, {50, 60}, R"({"rule":[[50,60],[200,180]]})"},
                          Case{{150, 100}, {190, 90}, R"({"rule":[[100,90],[200,180]]})"},
                          Case{{200, 100}, {260, 90}, R"({"rule":[[100,90],[260,180]]})"},
                          Case{{200, 140}, {260, 60}, R"({"rule":[[100,100],[260,180]]})"},
                          Case{{200, 180}, {9000, 300}, R"({"rule":[[100,100],[8191,300]]})"},
                          Case{{150, 180}, {90, 300}, R"({"rule":[[100,100],[200,300]]})"},
                          Case{{100, 180}, {-50, 210}, R"({"rule":[[0,100],[200,210]]})"},
                          Case{{100, 140}, {150, 60}, R"({"rule":[[150,100],[200,180]]})"},
                          Case{{150, 100}, {150, 250}, R"({"rule":[[100,180],[200,250]]})"},
                          Case{{200, 180}, {103.9F, 300}, R"({"rule":[[100,100],[200,180]]})"},
                          Case{{200, 180}, {300, 103}, R"({"rule":[[100,100],[200,180]]})"},
                          Case{{200, 180}, {104, 96}, R"({"rule":[[100,96],[104,100]]})"}}) {
        ScenarioHost host(GridView, GridView);
        host.Add("Rect", R"({"rule":[[0,0],[8191,8191]]})"); // whose inside claims less
        const ShapeID shape = host.Add("OvalShape", Oval);
        host.Drag(c.grab, c.drop);
        EXPECT_EQ(host.TakeLog(), Resized);
        EXPECT_EQ(host.Config(shape), c.config) << Written(c.grab);
    }
}

TEST(Oval, IsMovedByTheInsideOfItsRectangle) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("OvalShape", Oval);
    host.Press(106, 106); // outside the ellipse
    host.Move(116.5F, 126.5F);
    EXPECT_EQ(host.Paint()[0], "ellipse (110.5,120.5)-(210.5,200.5) w2 yellow") << "the mouse is not rounded";
    host.Move(5, 126.5F);
    host.Release(5, 126.5F);
    EXPECT_EQ(host.TakeLog(), Moved);
    EXPECT_EQ(host.Config(shape), R"({"rule":[[110,120],[210,200]]})") << "a step out of the view is refused";

    host.Click(108, 140); // on the edge, but outside
    host.RightPress(150, 150);
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.Click(300, 300);
    host.container.showHandles(shape);
    host.Click(300, 300); // also hides the handles of an unselected oval
    EXPECT_EQ(host.Paint(),
              (Lines{"ellipse (110.5,120.5)-(210.5,200.5) w2 blue", "text (110.5,120.5) \"\" size 2 blue"}));
    host.Click(150, 150);
    EXPECT_EQ(host.TakeLog(), Moved);
    EXPECT_EQ(host.container.selectedShape(), shape);
}

TEST(Oval, ReadsOneKeyAndWritesAnother) {
    struct Case {
        const char* config;
        bool made;
        const char* readBack;
    };
    for (const Case& c :
         {Case{Oval, true, R"({"rule":[[100,100],[200,180]]})"},
          Case{R"({"OvalShape":[[300,200],[100,9999]]})", true, R"({"rule":[[300,200],[100,9999]]})"},
          Case{R"({"OvalShape":[null,[5,6]]})", true, R"({"rule":[[0,0],[5,6]]})"},
          Case{R"({"OvalShape":[[1,2],null]})", true, ""}, Case{"", true, ""},
          Case{R"({"rule":[[100,100],[200,180]]})", false, ""}, Case{R"({"OvalShape":[[100,100]]})", false, ""},
          Case{R"({"OvalShape":[["a",100],[200,180]]})", false, ""}, Case{"[", false, ""}}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add("OvalShape", c.config, R"({"LineThickness":5})");
        EXPECT_EQ(shape != 0, c.made) << c.config;
        EXPECT_EQ(host.Config(shape), c.readBack) << c.config;
    }
    ScenarioHost host(GridView, GridView);
    host.Add("OvalShape", R"({"OvalShape":[[1,2],null]})", R"({"LineThickness":5})");
    host.Click(100, 100);
    host.Move(200, 200);
    EXPECT_EQ(host.TakeLog(), Lines{"redraw"}) << "half an oval is busy and cannot be drawn";
    EXPECT_EQ(host.Paint(), Lines{"ellipse (0,0)-(0,0) w2 yellow"}) << "and no oval reads a style";
}

TEST(Oval, ShowsInEveryViewAndHidesOnlyWithoutADrag) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("OvalShape", Oval);
    EXPECT_EQ(host.Paint(TheView + 1), SelectedOval({100, 100}, {200, 180}));
    host.container.showShape(shape, false);
    EXPECT_EQ(host.Paint(), Lines{});
    host.Drag({200, 180}, {210, 190});
    EXPECT_EQ(host.Paint(), SelectedOval({100, 100}, {210, 190})) << "the fixed corner and the release differ";
    host.Drag({150, 150}, {160, 160});
    EXPECT_EQ(host.Paint(), Lines{}) << "a move ends where the mouse is";
}

TEST(Oval, IsDeletedWithoutACaptureOrAListener) {
    ScenarioHost host;
    const ShapeID shape = host.Add("OvalShape");
    host.Press(100, 100);
    EXPECT_TRUE(host.container.redrawShape(shape)) << "an oval is not restarted: the drag goes on";
    host.Move(150, 150);
    EXPECT_EQ(host.Paint(), Lines{"ellipse (100,100)-(150,150) w2 yellow"});
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw"}));
    host.container.deleteShape(shape);
    host.Send(RULECANVAS_MOUSE_MOVED_EVENT, 160, 160);
    host.Release(160, 160);
    EXPECT_EQ(host.TakeLog(), Lines{});
    EXPECT_EQ(host.Paint(), Lines{});
}

} // namespace
} // namespace rulecanvas::test
