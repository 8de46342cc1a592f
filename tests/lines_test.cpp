#include "support/stories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace rulecanvas::test {
namespace {

constexpr const char* Level = R"({"rule":[[100,100],[200,100]]})";

using Row = std::array<const char*, 3>;

/// The points at which two strokes in a row begin: the tips of arrow heads.
std::string Tips(const Lines& drawn) {
    std::string tips;
    const auto begin = [&](size_t i) { return drawn[i].substr(0, drawn[i].find('-')); };
    for (size_t i = 1; i < drawn.size(); ++i) {
        if (begin(i) == begin(i - 1) && begin(i).rfind("line ", 0) == 0) {
            tips += begin(i++).substr(5);
        }
    }
    return tips;
}

TEST(Line, IsDrawnWithTwoClicksAsWellAsInOneStroke) {
    for (const auto& [type, kind, line] : {Row{"LineShape", "1", "line (10,10)-(200,90) w2 yellow"},
                                           Row{"VerticalLineShape", "3", "line (10,10)-(10,90) w2 yellow"},
                                           Row{"HorizontalLineShape", "2", "line (10,10)-(200,10) w2 yellow"},
                                           Row{"DashLineShape", "1", "line (10,10)-(200,90) w2 yellow dashed"},
                                           Row{"ArrowLineShape", "1", "line (10,10)-(200,90) w2 yellow"}}) {
        SCOPED_TRACE(type);
        ScenarioHost host(GridView, GridView);
        host.container.ShowHandles(host.Add(type), false);
        host.Press(10, 10);
        host.Release(15.9F, 5); // too near for a stroke
        host.Move(200.9F, 90.9F);
        EXPECT_EQ(host.Paint(), Lines{line});
        host.Click(200.9F, 90.9F);
        EXPECT_EQ(host.Paint()[0], line);
        EXPECT_NE(AllShapeStates().str().find(std::string("\"ShapeType\":") + kind + ","), std::string::npos);
        host.Drag({9, 300}, {300, 300}); // complete, it listens no longer
        EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "state rule 2>3", "capture off"}));
    }
}

TEST(Line, BeginsInTheViewAndEndsThereToo) {
    FigureHost host("LineShape");
    host.container.ShowHandles(host.shape, false);
    host.container.SetDirection(host.shape, 3); // a mark without arrows
    host.Press(801, 300);
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.Press(780, 300);
    EXPECT_EQ(host.Paint()[0], "line (780,300)-(780,300) w2 yellow") << "no line to the corner before the first move";
    host.Move(900, 300);
    EXPECT_EQ(host.Paint(), (Lines{"line (780,300)-(800,300) w2 yellow", "line (790,280)-(790,320) w2 yellow"}));
    host.Release(900, 700);
    EXPECT_EQ(host.Paint()[0], "line (780,300)-(800,600) w2 yellow");
    host.container.RedrawShape(host.shape);
    host.Drag({10, 10}, {16, 10}); // just long enough
    EXPECT_NE(host.Config(), "");
    host.container.RedrawShape(host.shape);
    host.Press(10, 10);
    host.Resize(0, 0);
    host.Release(100, 100);
    EXPECT_EQ(host.Config(), "") << "a view without a size has no place for the end";
}

TEST(Line, IsDrawnToAPointerOnTheBorderButNotToOneThatAResizeLeftOutside) {
    using Pointer = std::tuple<PointF, PointF, size_t>; // the pointer, the size of the view after its move, strokes
    for (const char* type : {"LineShape", "ArrowLineShape", "XLineShape", "DashLineShape"}) {
        for (const auto& [pointer, size, strokes] :
             {Pointer{{0, 0}, {800, 600}, 1}, Pointer{{800, 600}, {800, 600}, 1}, Pointer{{800, 300}, {799, 600}, 0},
              Pointer{{400, 600}, {800, 599}, 0}, Pointer{{400, 300}, {400, 300}, 1}}) {
            ScenarioHost host;
            host.container.ShowHandles(host.Add(type), false);
            host.Press(100, 100);
            host.Move(pointer.x, pointer.y);
            host.Resize(static_cast<int>(size.x), static_cast<int>(size.y));
            Lines drawn = host.Paint();
            drawn.erase(std::remove_if(drawn.begin(), drawn.end(), [](const auto& call) { return call[0] != 'l'; }),
                        drawn.end());
            EXPECT_EQ(drawn.size(), strokes) << type << Written(pointer);
        }
    }
}

TEST(Line, IsAHorizonByItsNameToo) {
    for (const char* name : {"Horizon", "MovedHLine", "horizon"}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add("LineShape", Rule("100,100 200,100", name), "", name);
        host.Drag({150, 102}, {180, 122});
        EXPECT_EQ(host.Config(shape), Rule(*name == 'h' ? "130,120 230,120" : "100,120 200,120", name));
    }
}

TEST(Line, IsHitOnItsSegmentsAloneAndDeselectedByAnyOtherPress) {
    GridHost host("LineShape", Level, R"({"LineThickness":5,"CanAdjust":false})");
    host.container.SetCaption(host.shape, "gate");
    host.container.SetDirection(host.shape, 0);
    EXPECT_EQ(host.Paint(),
              (Lines{"line (100,100)-(200,100) w5 yellow", "line (150,80)-(150,120) w2 yellow",
                     "line (150,120)-(145.22,111.22) w2 yellow", "line (150,120)-(155.21,111.47) w2 yellow",
                     "caption \"gate\" at (100,100)(200,100) yellow clip 0,0,8191,8191",
                     "rect (97,97)-(103,103) w2 yellow", "rect (197,97)-(203,103) w2 yellow"}));
    host.Press(203, 103);
    EXPECT_EQ(host.container.SelectedShape(), host.shape);
    host.Press(204, 100); // near the end, but not near the segment
    EXPECT_EQ(host.Paint()[0], "line (100,100)-(200,100) w2 blue");
    EXPECT_EQ(host.TakeLog(), Lines{}) << "neither press could grab it";
}

TEST(Line, ShowsTheDirectionOfCrossingAndATripwireItsSidesToo) {
    // The tips for the directions from 0 to 2; the letters at the upper or left end of the stroke and at the other.
    for (const auto& [path, tips, letters] :
         {Row{"[100,100],[200,100]", "(150,120) (150,80) (150,120)(150,80) ", "AB"},
          Row{"[200,100],[100,100]", "(150,80) (150,120) (150,80)(150,120) ", "BA"},
          Row{"[100,100],[100,200]", "(80,150) (120,150) (80,150)(120,150) ", "BA"},
          Row{"[100,200],[100,100]", "(120,150) (120,150) (120,150)(120,150) ", "AB"}}) {
        for (const char* type : {"LineShape", "XLineShape"}) {
            GridHost host(type, R"({"rule":[)" + std::string(path) + "]}", R"({"Direction":1})");
            EXPECT_EQ(Tips(host.Paint()), "") << "the style's direction is another one";
            std::string seen;
            for (int direction = 0; direction <= 2; ++direction) {
                host.container.SetDirection(host.shape, direction);
                seen += Tips(host.Paint()) + " ";
            }
            for (const std::string& call : host.Paint()) {
                seen += call.find("size 1 yellow") == std::string::npos ? "" : call.substr(call.find('"') + 1, 1);
            }
            EXPECT_EQ(seen, std::string(tips) + (*type == 'X' ? letters : "")) << type << path;
        }
    }
}

TEST(XLine, IsDrawnPointByPointAndFinishedByTheRightButton) {
    GridHost host("XLineShape", "", R"({"UnSelLineThickness":7,"LineThickness":4})");
    host.container.SetCaption(host.shape, "wire");
    host.container.SetDirection(host.shape, 4);
    host.Click(100, 100);
    host.RightPress(100, 100); // one point is no path
    host.Click(200, 100);
    host.Click(300, 100);
    host.Click(400, 100);
    host.Move(400, 200);
    const std::string name = "text (100,100) \"wire\" size 0 yellow";
    const Lines drawn = host.Paint();
    EXPECT_EQ(Lines(drawn.begin(), drawn.begin() + 12),
              (Lines{name, "line (400,100)-(400,200) w4 yellow", name, "line (100,100)-(200,100) w4 yellow", name,
                     "line (200,100)-(300,100) w4 yellow", name, "line (300,100)-(400,100) w4 yellow",
                     "line (250,80)-(250,120) w2 yellow", "text (250,80) \"A\" size 1 yellow",
                     "text (250,120) \"B\" size 1 yellow", "line (250,120)-(245.22,111.22) w1 yellow"}));
    EXPECT_EQ(Tips(drawn), "(250,120)(250,80)(380,150)(420,150)") << "on the middle segment and on the rubber line";
    EXPECT_EQ(drawn.back(), "rect (397,97)-(403,103) w2 yellow");
    host.RightPress(300, 300);
    host.RightPress(150, 100); // finished
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "state rule 2>3", "capture off"}));
    host.container.SelectShape(host.shape, false);
    EXPECT_EQ(host.Paint()[1], "line (100,100)-(200,100) w4 blue") << "as thick as when selected";
}

TEST(DashLine, HasOneThicknessNoMarkAndAlwaysACaption) {
    GridHost host("DashLineShape", Level, R"({"UnSelLineThickness":7})");
    host.container.SetDirection(host.shape, 2);
    EXPECT_EQ(host.Paint().back(), "rect (197,97)-(203,103) w2 yellow");
    host.container.SelectShape(host.shape, false);
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w2 blue dashed",
                                   "caption \"\" at (100,100)(200,100) blue clip 0,0,8191,8191"}));
}

TEST(ArrowLine, PutsItsHeadWhereTheDirectionSays) {
    using Heads = std::pair<const char*, const char*>; // for the directions from 2 to 6
    for (const auto& [path, heads] : {Heads{"[100,200],[200,100]", " (200,100) (100,200) (200,100)  "},
                                      Heads{"[100,100],[200,100]", " (100,100) (200,100) (200,100)  "},
                                      Heads{"[10,10],[20,20],[30,15],[40,20],[50,10]", " (50,10) (10,10) (20,20)  "},
                                      Heads{"[10,20],[20,10],[30,15],[40,10],[50,20]", " (10,20) (50,20) (20,10)  "}}) {
        GridHost host("ArrowLineShape", R"({"rule":[)" + std::string(path) + "]}", R"({"XArrowLine":true})");
        std::string seen;
        for (int direction = 2; direction <= 6; ++direction) {
            host.container.SetDirection(host.shape, direction);
            seen += Tips(host.Paint()) + " ";
        }
        EXPECT_EQ(seen, heads) << path;
    }
    ScenarioHost begun(GridView, GridView);
    begun.Add("ArrowLineShape", "", R"({"Direction":5})");
    Act(begun, "press 10 10 move 90 10");
    EXPECT_EQ(begun.Paint(), Lines{"line (10,10)-(90,10) w2 yellow"}) << "no head before there is a segment";
    ScenarioHost host(GridView, GridView);
    host.container.ShowHandles(host.Add("ArrowLineShape", Level, R"({"LineThickness":3,"Direction":5})"), false);
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w3 yellow", "line (200,100)-(191.34,105) w3 yellow",
                                   "line (200,100)-(191.34,95) w3 yellow"}));
}

} // namespace
} // namespace rulecanvas::test
