#include "support/stories.h"

#include <gtest/gtest.h>

#include <array>

namespace rulecanvas::test {
namespace {

constexpr const char* Square = R"({"rule":[[100,100],[200,200]]})";

Lines SelectedRectangle(const PointF& topLeft, const PointF& bottomRight) {
    const std::string outline = Written(topLeft) + "-" + Written(bottomRight);
    Lines lines{"text " + Written(topLeft) + " \"\" size 2 yellow", "rect " + outline + " w2 yellow"};
    for (const auto& [x, y] :
         {topLeft, PointF{bottomRight.x, topLeft.y}, bottomRight, PointF{topLeft.x, bottomRight.y}}) {
        lines.push_back("rect " + Written({x - 3, y - 3}) + "-" + Written({x + 3, y + 3}) + " w2 yellow");
    }
    return lines;
}

TEST(Rectangle, ThatCannotBeBuiltWaitsToBeDrawnAgain) {
    FigureHost host("Rect");
    EXPECT_EQ(host.Paint(), Lines{});
    EXPECT_EQ(host.container.SelectedShape(), host.shape);
    host.Press(801, 10);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "a press outside the view";
    host.Click(100, 100);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "capture off"})) << "released where it was pressed";
    EXPECT_EQ(host.Config(), "");
    host.Press(100, 100);
    host.Move(150, 150);
    host.Move(109, 150);
    EXPECT_EQ(host.Paint(), SelectedRectangle({100, 100}, {150, 150})) << "too narrow: the last good one stays";
    host.Release(109, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "redraw", "capture off"}));
    EXPECT_EQ(host.Paint(), SelectedRectangle({100, 100}, {150, 150})) << "and waits to be replaced";
    EXPECT_NE(host.Config(), "");

    host.Press(700, 500);
    host.Move(650, 450);
    EXPECT_EQ(host.Paint(), SelectedRectangle({650, 450}, {700, 500})) << "in any direction";
    host.Move(900, 700);
    host.Release(900, 700);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "redraw"})) << "released outside: still drawing";
    EXPECT_EQ(host.Paint(), SelectedRectangle({700, 500}, {800, 600})) << "clamped to the view";
    host.Release(750.9F, 550.9F);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture off", "state rule 2>3"}));
    EXPECT_EQ(host.Paint(), SelectedRectangle({700, 500}, {750, 550})) << "whole pixels, toward zero";
}

TEST(Rectangle, IsDeselectedByAPressBesideItAndSelectedAgainByOneInside) {
    GridHost host("Rect", Square);
    host.Click(300, 300);
    EXPECT_EQ(host.TakeLog(), Lines{});
    EXPECT_EQ(host.Paint(), (Lines{"text (100,100) \"\" size 2 blue", "rect (100,100)-(200,200) w2 blue"}));
    host.Click(197, 150); // on an edge, not on a corner
    EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on", "state rule 4>3", "capture off"}));
    EXPECT_EQ(host.Paint(), SelectedRectangle({100, 100}, {200, 200}));
}

TEST(Rectangle, ThatWasDeletedByTheRightButtonCanBeDrawnAnew) {
    GridHost host("Rect", Square, "EnableRBtnDelete");
    host.RightPress(150, 150);
    EXPECT_EQ(host.Paint(), Lines{});
    EXPECT_TRUE(host.container.RedrawShape(host.shape));
    host.Drag({10, 10}, {90, 90});
    EXPECT_EQ(host.Config(), Rule("10,10 90,90"));
}

TEST(Rectangle, DrawsAsItsStyleSays) {
    using Case = std::array<const char*, 3>;
    const char* incomplete =
        R"({"ShapeColor":[{"ColorName":"SelColor","R":1,"G":2,"B":3},{"ColorName":"UnSelColor","R":9,"G":8},)"
        R"({"ColorName":"Other","R":1,"G":1,"B":1},{"R":4,"G":4,"B":4}],"LineThickness":3.0,"PenStyle":"1"})";
    for (
        const auto& [option, whenSelected, whenDeselected] : {
            Case{R"({"LineThickness":5,"UnSelLineThickness":3})", " w5 yellow", " w3 blue"},
            Case{R"({"LineThickness":5,"PenStyle":1})", " w1 yellow dashed", " w1 blue dashed"},
            Case{incomplete, " w2 1,2,3", " w2 blue"},
            Case{R"({"ShapeColor":[7,"x",[],{"ColorName":"SelColor","R":1,"G":2,"B":3}]})", " w2 1,2,3", " w2 blue"},
            Case{
                R"({"ShapeColor":[{"ColorName":"UnSelColor","R":9,"G":8,"B":7},{"ColorName":"SelColor","G":8,"B":7}]})",
                " w2 yellow", " w2 9,8,7"},
            Case{R"({"ShapeColor":[{"ColorName":"FillColor","R":9,"G":8,"B":7},{"ColorName":"SelColor","R":8,"B":7},)"
                 R"({"ColorName":"FontColor","R":9,"G":8,"B":7}]})",
                 " w2 yellow", " w2 blue"},
            Case{R"({"ShapeColor":[{"ColorName":"SelColor","R":1,"G":2,"B":4}]})", " w2 1,2,4", " w2 blue"},
            Case{R"({"LineThickness":7,})", " w2 yellow", " w2 blue"},
            Case{R"({"LineThickness":5000000000,"UnSelLineThickness":7})", " w2 yellow", " w7 blue"},
            Case{"TextOnly,EnableRBtnDelete", " w2 yellow", " w2 blue"},
        }) {
        GridHost host("Rect", R"({"rule":[[0,0],[20,20]]})", option);
        EXPECT_EQ(host.Paint()[1], std::string("rect (0,0)-(20,20)") + whenSelected);
        host.container.SelectShape(host.shape, false);
        EXPECT_EQ(host.Paint()[1], std::string("rect (0,0)-(20,20)") + whenDeselected);
    }
    GridHost host("Rect", Square, "TextOnly");
    EXPECT_EQ(host.Paint(), Lines{"text (100,100) \"\" size 2 yellow"}) << "no handles on a mere text";
}

TEST(Rectangle, CoversItsInsideWithAMosaic) {
    using Case = std::pair<const char*, Lines>;
    const std::string black = " 0,0,0@128";
    const std::string white = " 255,255,255@128";
    for (const auto& [option, layer] :
         {Case{R"({"mosaic":{"enable":true}})",
               {"layer", "layer-size 20x12", "fill (0,0)-(8,8)" + black, "fill (8,0)-(16,8)" + white,
                "fill (16,0)-(20,8)" + black, "fill (0,8)-(8,12)" + white, "fill (8,8)-(16,12)" + black,
                "fill (16,8)-(20,12)" + white, "layer-end (5,5)"}},
          Case{R"({"mosaic":{"enable":1,"size":20}})",
               {"layer", "layer-size 20x12", "fill (0,0)-(20,12)" + black, "layer-end (5,5)"}},
          Case{R"({"mosaic":{"enable":true,"size":0}})", {}}, Case{R"({"mosaic":{"size":8}})", {}}}) {
        GridHost host("Rect", R"({"rule":[[5,5],[25,17]]})", option);
        host.container.SelectShape(host.shape, false);
        const Lines drawn = host.Paint();
        ASSERT_GE(drawn.size(), 2U);
        EXPECT_EQ(Lines(drawn.begin() + 2, drawn.end()), layer) << option;
    }
    GridHost finest("Rect", R"({"rule":[[5,5],[25,17]]})", R"({"mosaic":{"enable":true,"size":1}})");
    EXPECT_GT(finest.Paint().size(), 240U) << "a cell a pixel";
}

TEST(Rectangle, FollowsTheSizeOfItsView) {
    ScenarioHost host(400, 300);
    host.Add("Rect");
    host.Drag({100, 60}, {200, 150});
    host.Resize(800, 150);
    EXPECT_EQ(host.Paint(), SelectedRectangle({200, 30}, {400, 75}));
    host.Resize(800, 300); // the height alone
    EXPECT_EQ(host.Paint(), SelectedRectangle({200, 60}, {400, 150}));
    // Scaled by the right and bottom edges, then remembered by width and height.
    using Case = std::pair<ClientRect, const char*>;
    for (const auto& [view, drawn] :
         {Case{{0, 0, 800, 150}, "(200,30)-(400,75)"}, Case{{400, 0, 1600, 150}, "(400,30)-(800,75)"},
          Case{{400, 0, 1600, 150}, "(533.33,30)-(1066.67,75)"}, Case{{0, 0, 1200, 150}, "(533.33,30)-(1066.67,75)"},
          Case{{0, 50, 1200, 150}, "(533.33,30)-(1066.67,75)"}, Case{{0, 0, 1200, 100}, "(533.33,30)-(1066.67,75)"},
          Case{{0, 0, 1200, 200}, "(533.33,60)-(1066.67,150)"}}) {
        host.clientRect = view;
        EXPECT_EQ(host.Paint()[1], "rect " + std::string(drawn) + " w2 yellow");
    }
}

} // namespace
} // namespace rulecanvas::test
