#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace rulecanvas::test {
namespace {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

constexpr const char* Level = R"({"rule":[[100,100],[200,100]]})";

std::string Handle(float x, float y) {
    return "rect " + Written({x - 3, y - 3}) + "-" + Written({x + 3, y + 3}) + " w2 yellow";
}

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
    struct Case {
        const char* type;
        const char* kind;
        const char* line;
    };
    for (const Case& c : {Case{"LineShape", "1", "line (10,10)-(200,90) w2 yellow"},
                          Case{"VerticalLineShape", "3", "line (10,10)-(10,90) w2 yellow"},
                          Case{"HorizontalLineShape", "2", "line (10,10)-(200,10) w2 yellow"},
                          Case{"DashLineShape", "1", "line (10,10)-(200,90) w2 yellow dashed"},
                          Case{"ArrowLineShape", "1", "line (10,10)-(200,90) w2 yellow"}}) {
        SCOPED_TRACE(c.type);
        ScenarioHost host(GridView, GridView);
        host.container.showHandles(host.Add(c.type), false);
        host.Press(10, 10);
        host.Release(15.9F, 5); // too near for a stroke
        host.Move(200.9F, 90.9F);
        EXPECT_EQ(host.Paint(), Lines{c.line});
        host.Press(200.9F, 90.9F);
        EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw"}));
        host.Release(200.9F, 90.9F);
        EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>3", "capture off"}));
        EXPECT_EQ(host.Paint()[0], c.line);
        EXPECT_NE(allShapeStates().str().find(std::string("\"ShapeType\":") + c.kind + ","), std::string::npos);
        host.Drag({9, 300}, {300, 300});
        EXPECT_EQ(host.TakeLog(), Lines{}) << "complete, and no longer listening";
    }
}

TEST(Line, BeginsInTheViewAndEndsThereToo) {
    ScenarioHost host(800, 600);
    host.container.setDirection(host.Add("LineShape"), 3); // a mark without arrows
    host.Press(801, 300);
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.Press(780, 300);
    EXPECT_EQ(host.Paint()[0], "line (780,300)-(780,300) w2 yellow") << "no line to the corner before the first move";
    host.Move(900, 300);
    EXPECT_EQ(host.Paint(),
              (Lines{"line (780,300)-(800,300) w2 yellow", "line (790,280)-(790,320) w2 yellow", Handle(780, 300)}));
    host.TakeLog();
    host.clientRect = {20, 0, 820, 600}; // clamped to 820, of a width of 800
    host.Release(900, 700);
    EXPECT_EQ(host.TakeLog(), Lines{});
    host.Resize(800, 600);
    host.Release(900, 700);
    EXPECT_EQ(host.Paint()[0], "line (780,300)-(800,600) w2 yellow");
}

TEST(Line, ReadsItsConfigurationOrRefusesIt) {
    struct Case {
        const char* name;
        const char* points;
        const char* readBack;
    };
    for (const Case& c :
         {Case{"a", "[[1.9,2],[3,4],[\"x\"]]", "[[1,2],[3,4]]"}, Case{"a", "[[1,2]]", ""}, Case{"a", "[", ""},
          Case{"StopLine", "[[0,100],[100,100]]", "[[0,100],[8191,100]]"},
          Case{"ForLine", "[[200,200],[100,100]]", "[[0,0],[8191,8191]]"},
          Case{"BackLine", "[[7,50],[7,90]]", "[[7,0],[7,8191]]"}, Case{"DetectLine", "[[7,9],[7,9]]", "[[7,9],[7,9]]"},
          Case{"ParkLine", "[[7,9],[9000,9]]", "[[7,9],[9000,9]]"}}) {
        ScenarioHost host(GridView, GridView);
        const std::string member = "{\"" + std::string(c.name) + "\":";
        const std::string config = member + c.points + "}";
        const ShapeID shape = host.container.addShape({TheView, "LineShape", "", c.name, config.c_str(), ""});
        const std::string readBack = *c.readBack == '\0' ? "" : member + c.readBack + "}";
        EXPECT_EQ(host.container.configuration(shape).str(), readBack) << "without a line feed";
        EXPECT_EQ(shape == 0, readBack.empty()) << config;
        std::string buffer(readBack.size() + 1, '#');
        const auto size = static_cast<int32_t>(readBack.size());
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer.data(), size), 0U);
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.handle(), shape, buffer.data(), size + 1), shape != 0);
    }
    ScenarioHost small(1000, 500);
    small.container.addShape({TheView, "LineShape", "", "MiddleLine", R"({"MiddleLine":[[0,100],[100,100]]})", ""});
    EXPECT_EQ(small.Paint()[0], "line (0,6)-(8191,6) w2 yellow") << "the grid's span counts as pixels";
}

TEST(Line, KeepsAsManyPointsAsItMayHave) {
    std::string config = R"({"rule":[[0,0])";
    for (int i = 1; i < 25; ++i) {
        config += ",[9,9]";
    }
    const auto kept = [&](const char* type, const char* option) {
        ScenarioHost host;
        const std::string text = host.Config(host.Add(type, config + "]}", option));
        return std::count(text.begin(), text.end(), '[') - 1;
    };
    EXPECT_EQ(kept("ArrowLineShape", ""), 2);
    EXPECT_EQ(kept("ArrowLineShape", R"({"XArrowLine":true})"), 20);
    EXPECT_EQ(kept("XLineShape", ""), 20);
}

TEST(Line, IsMovedOrReshapedAsFarAsItsKindAllows) {
    struct Case {
        const char* type;
        const char* option;
        PointF grab;
        PointF drop;
        const char* points;
    };
    const PointF middle{150, 102};
    const PointF left{97, 103};
    const PointF right{200, 100};
    for (const Case& c : {Case{"LineShape", "", middle, {180, 122}, "[130,120],[230,120]"},
                          Case{"LineShape", "Horizon", middle, {180, 122}, "[100,120],[200,120]"},
                          Case{"LineShape", "MovedHLine", middle, {180, 122}, "[100,120],[200,120]"},
                          Case{"XLineShape", "Horizon", middle, {180, 122}, "[100,120],[200,120]"},
                          Case{"ArrowLineShape", "Horizon", middle, {180, 122}, "[130,120],[230,120]"},
                          Case{"LineShape", R"({"CanMove":false})", middle, {180, 122}, "[100,100],[200,100]"},
                          Case{"LineShape", "", left, {50.9F, -9}, "[50,0],[200,100]"},
                          Case{"LineShape", "Horizon", left, {50, 60}, "[50,60],[200,60]"},
                          Case{"LineShape", "Horizon", right, {250, 60}, "[100,100],[250,100]"},
                          Case{"LineShape", "MovedHLine", right, {250, 60}, "[100,100],[200,100]"},
                          Case{"VerticalLineShape", "", right, {250, 60}, "[100,100],[100,60]"},
                          Case{"HorizontalLineShape", "", left, {50, 60}, "[50,100],[200,100]"},
                          Case{"ArrowLineShape", "", right, {250, 60}, "[100,100],[250,60]"},
                          Case{"XLineShape", "", right, {8192, 60}, "[100,100],[200,100]"}}) {
        SCOPED_TRACE(c.type + std::string(" ") + c.option + " at " + Written(c.grab));
        const std::string expected = R"({"rule":[)" + std::string(c.points) + "]}";
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add(c.type, Level, c.option);
        host.Press(c.grab.x, c.grab.y);
        host.Move(c.drop.x, c.drop.y);
        EXPECT_EQ(host.Config(shape), expected) << "while the button is down";
        if (c.grab.x != middle.x) {
            host.Move(c.grab.x, c.grab.y); // an end goes where the button is released
        }
        host.Release(c.drop.x, c.drop.y);
        EXPECT_EQ(host.Config(shape), expected);
        EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on",
                                         c.grab.x == middle.x ? "state rule 4>3" : "state rule 5>3", "capture off"}));
    }
}

TEST(Line, IsLetGoWhenItMeetsTheBorder) {
    for (const char* type : {"LineShape", "ArrowLineShape"}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add(type, Level);
        host.Press(150, 100);
        host.Move(60, 90);
        host.Move(49, 80);
        EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on", "capture off"}));
        host.Move(60, 90);
        host.Release(60, 90);
        EXPECT_EQ(host.TakeLog(), Lines{});
        EXPECT_EQ(host.Config(shape), R"({"rule":[[10,90],[110,90]]})") << "where the last good step left it";
        host.Press(60, 90);
        EXPECT_EQ(host.TakeLog(), (Lines{"select rule", "capture on"}));
    }
}

TEST(Line, IsHitOnItsSegmentsAloneAndDeselectedByAnyOtherPress) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("LineShape", Level, R"({"LineThickness":5,"CanAdjust":false})");
    host.container.setCaption(shape, "gate");
    const std::string caption = "caption \"gate\" at (100,100)(200,100) ";
    const std::string clip = " clip 0,0,8191,8191";
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w5 yellow", caption + "yellow" + clip, Handle(100, 100),
                                   Handle(200, 100)}));
    host.Press(203, 103);
    EXPECT_EQ(host.container.selectedShape(), shape);
    host.Press(204, 100); // near the end, but not near the segment
    EXPECT_EQ(host.container.selectedShape(), 0U);
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w2 blue", caption + "blue" + clip}));
    EXPECT_EQ(host.TakeLog(), Lines{}) << "neither press could grab it";
}

TEST(Line, ShowsTheDirectionOfCrossingAndATripwireItsSidesToo) {
    struct Case {
        const char* path;
        const char* letters; // at the upper or left end of the stroke, then at the other
        const char* tips[3]; // for the directions from 0 to 2
    };
    for (const Case& c : {Case{"[[100,100],[200,100]]", "AB", {"(150,120)", "(150,80)", "(150,120)(150,80)"}},
                          Case{"[[200,100],[100,100]]", "BA", {"(150,80)", "(150,120)", "(150,80)(150,120)"}},
                          Case{"[[100,100],[100,200]]", "BA", {"(80,150)", "(120,150)", "(80,150)(120,150)"}},
                          Case{"[[100,200],[100,100]]", "AB", {"(120,150)", "(120,150)", "(120,150)(120,150)"}}}) {
        for (const char* type : {"LineShape", "XLineShape"}) {
            ScenarioHost host(GridView, GridView);
            const ShapeID shape = host.Add(type, R"({"rule":)" + std::string(c.path) + "}", R"({"Direction":1})");
            EXPECT_EQ(Tips(host.Paint()), "") << "the style's direction is another one";
            for (int direction = 0; direction <= 2; ++direction) {
                host.container.setDirection(shape, direction);
                EXPECT_EQ(Tips(host.Paint()), c.tips[direction]) << type << c.path << direction;
            }
            std::string letters;
            for (const std::string& call : host.Paint()) {
                letters += call.find("size 1 yellow") == std::string::npos ? "" : call.substr(call.find('"') + 1, 1);
            }
            EXPECT_EQ(letters, *type == 'X' ? c.letters : "") << c.path;
        }
    }
    ScenarioHost host(GridView, GridView);
    host.container.setDirection(host.Add("LineShape", Level), 0);
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w2 yellow", "line (150,80)-(150,120) w2 yellow",
                                   "line (150,120)-(145.22,111.22) w2 yellow",
                                   "line (150,120)-(155.21,111.47) w2 yellow", Handle(100, 100), Handle(200, 100)}));
}

TEST(DashLine, HasOneThicknessNoMarkAndAlwaysACaption) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("DashLineShape", Level, R"({"UnSelLineThickness":7})");
    host.container.setDirection(shape, 2);
    host.container.selectShape(shape, false);
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w2 blue dashed",
                                   "caption \"\" at (100,100)(200,100) blue clip 0,0,8191,8191"}));
}

TEST(XLine, IsDrawnPointByPointAndFinishedByTheRightButton) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("XLineShape", "", R"({"UnSelLineThickness":7,"LineThickness":4})");
    host.container.setCaption(shape, "wire");
    host.container.setDirection(shape, 4);
    host.Click(100, 100);
    host.RightPress(100, 100);
    EXPECT_EQ(host.TakeLog(), Lines{"capture on"}) << "one point is no path";
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
    EXPECT_EQ(drawn.back(), Handle(400, 100));

    host.Send(RULECANVAS_MOUSE_ALT_RIGHT_DOWN, 300, 300);
    EXPECT_EQ(host.TakeLog(), Lines{"redraw"});
    host.RightPress(300, 300);
    EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>3", "capture off"}));
    host.container.selectShape(shape, false);
    EXPECT_EQ(host.Paint()[1], "line (100,100)-(200,100) w4 blue") << "as thick as when selected";
    host.RightPress(150, 100);
    EXPECT_EQ(host.TakeLog(), Lines{}) << "finished";
}

TEST(ArrowLine, PutsItsHeadWhereTheDirectionSays) {
    struct Case {
        const char* path;
        const char* tips[5]; // for the directions from 2 to 6
    };
    for (const Case& c : {Case{"[100,200],[200,100]", {"", "(200,100)", "(100,200)", "(200,100)", ""}},
                          Case{"[100,100],[200,200]", {"", "(100,100)", "(200,200)", "(200,200)", ""}},
                          Case{"[100,100],[200,100]", {"", "(100,100)", "(200,100)", "(200,100)", ""}},
                          Case{"[10,10],[20,20],[30,15],[40,20],[50,10]", {"", "(50,10)", "(10,10)", "(20,20)", ""}},
                          Case{"[10,20],[20,10],[30,15],[40,10],[50,20]", {"", "(10,20)", "(50,20)", "(20,10)", ""}}}) {
        for (int direction = 2; direction <= 6; ++direction) {
            ScenarioHost host(GridView, GridView);
            host.Add("ArrowLineShape", R"({"rule":[)" + std::string(c.path) + "]}",
                     R"({"XArrowLine":true,"Direction":)" + std::to_string(direction) + "}");
            EXPECT_EQ(Tips(host.Paint()), c.tips[direction - 2]) << c.path << direction;
        }
    }
    ScenarioHost host(GridView, GridView);
    host.container.setDirection(host.Add("ArrowLineShape", Level, R"({"LineThickness":3})"), 5);
    EXPECT_EQ(host.Paint(), (Lines{"line (100,100)-(200,100) w3 yellow", "line (200,100)-(191.34,105) w3 yellow",
                                   "line (200,100)-(191.34,95) w3 yellow"}));
}

TEST(ArrowLine, GivesTheCaptureBackOnceHoweverItsGestureEnds) {
    const std::function<void(ScenarioHost&, ShapeID)> endings[] = {
        [](ScenarioHost& host, ShapeID) { host.RightPress(0, 0); },
        [](ScenarioHost& host, ShapeID shape) { host.container.redrawShape(shape); },
        [](ScenarioHost& host, ShapeID shape) { host.container.deleteShape(shape); },
        [](ScenarioHost& host, ShapeID) { host.container.deleteAllShapes(); }};
    for (const auto& end : endings) {
        ScenarioHost host;
        const ShapeID shape = host.Add("ArrowLineShape", "", R"({"XArrowLine":true})");
        host.Drag({100, 100}, {200, 100}); // the first two points
        host.TakeLog();
        end(host, shape);
        host.Release(300, 300);
        const Lines log = host.TakeLog();
        EXPECT_EQ(std::count(log.begin(), log.end(), "capture off"), 1);
        EXPECT_EQ(log.back(), "capture off");
    }
}

} // namespace
} // namespace rulecanvas::test
