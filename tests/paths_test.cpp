// Polygons and broken lines: figures that are drawn click by click.

#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

namespace rulecanvas::test {
namespace {

/// Pixels and grid are the same number in a view of this size.
constexpr int GridView = 8191;

constexpr const char* Square = "100,100 200,100 200,200 100,200";
constexpr const char* Hook = "100,100 200,100 200,200";
constexpr const char* Refused = "refused";

/// The configuration with these points; a JSON text stays as it is.
std::string Rule(std::string points) {
    if (points.empty() || points == Refused || points[0] == '{') {
        return points;
    }
    for (size_t at = points.find(' '); at != std::string::npos; at = points.find(' ')) {
        points.replace(at, 1, "],[");
    }
    return R"({"rule":[[)" + points + "]]}";
}

const Lines On{"capture on"};
const Lines Moved{"select rule", "capture on", "state rule 4>3", "capture off"};
const Lines Reshaped{"select rule", "capture on", "state rule 5>3", "capture off"};
const Lines RemovedWhileMoved{"select rule", "capture on", "capture off", "state rule 4>0"};
const Lines RemovedWhileReshaped{"select rule", "capture on", "capture off", "state rule 5>0"};
const Lines Removed{"capture off", "state rule 3>0"};

/// Does what the words say: "press 10 20 move 30 40 release 30 40", "click", "right".
void Act(ScenarioHost& host, const std::string& words) {
    std::istringstream in(words);
    std::string verb;
    float x = 0;
    float y = 0;
    while (in >> verb >> x >> y) {
        verb == "click"     ? host.Click(x, y)
        : verb == "press"   ? host.Press(x, y)
        : verb == "release" ? host.Release(x, y)
        : verb == "move"    ? host.Move(x, y)
                            : host.RightPress(x, y);
    }
}

/// A figure with at most four points, what is done to it, what the host hears, and the points in the end.
struct Story {
    const char* type;
    const char* option;
    std::string begin;
    const char* acts;
    Lines log;
    const char* end;
};

void Check(const std::vector<Story>& stories) {
    for (const Story& story : stories) {
        SCOPED_TRACE(story.type + story.begin + story.acts);
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add(story.type, Rule(story.begin), story.option);
        host.container.SetPointLimits(shape, 4, 2); // the minimum stays 3
        Act(host, story.acts);
        Lines log = host.TakeLog();
        log.erase(std::remove(log.begin(), log.end(), "redraw"), log.end());
        EXPECT_EQ(log, story.log);
        EXPECT_EQ(shape == 0 ? Refused : host.Config(shape), Rule(story.end));
    }
}

TEST(Paths, AreDrawnByClicks) {
    // The capture is asked for by the first press and again by every release.
    const Lines drawn{"capture on", "capture on", "capture on", "state rule 2>3", "capture off"};
    Check({
        {"Polygon", "", "",
         "press 9000 9 click 100 100 click 200 100 right 9 9 press 203 103 press 9000 150 press 200 200 right 9 9",
         drawn, Hook},
        {"Polygon", "", "", "click 100 100 click 200 100 press 200 200 press 300 150 press 150 50 press 100 200", drawn,
         Square}, // the last point leaves room for the closing edge
        {"BrokenLine", "Convex", "", "click 100 100 click 200 100 press 200 104 press 190 102 right 9 9", drawn,
         "100,100 200,100 200,104"},
        // A move by 4000 pixels would round the third vertex onto the first edge.
        {"Polygon",
         "",
         "",
         "click 0 10 click 100 10 click 50 10.000002 press 0 50 press 10 20 move 10 4020 release 0 0",
         {"capture on", "capture on", "capture on", "capture on", "state rule 2>3", "capture off", "select rule",
          "capture on", "state rule 4>3", "capture off"},
         "0,10 100,10 50,10 0,50"},
    });
}

TEST(Polygon, ThatItsClosingEdgeWouldCrossIsThrownAwayByTheRightButton) {
    ScenarioHost host(GridView, GridView);
    const ShapeID shape = host.Add("Polygon");
    Act(host, "click 50 50 click 100 50 click 100 0 click 0 0 click 0 100 click 120 100 click 120 40");
    host.TakeLog();
    Act(host, "right 0 0 move 200 200 release 200 200");
    EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>1", "capture off"})) << "and listens no more";
    Act(host, "click 10 10 click 60 10 click 60 60 right 0 0");
    EXPECT_EQ(host.Config(shape), Rule("10,10 60,10 60,60"));
}

TEST(Paths, AreReshapedMovedDeletedAndGivenVertices) {
    Check({
        {"Polygon", "", Square, "press 204 96 move 250.7 -5 move 150 300 release 9 9", Reshaped,
         "100,100 250,0 200,200 100,200"},
        {"Polygon", "", Square, "press 150 150 move 130 140 move 20 130 move 129 150 release 9 9", Moved,
         "79,100 179,100 179,200 79,200"},
        {"Polygon", "", Square, "right 150 150 right 200 150", {}, Square},
        // A corner at the height of the press lies to the right of it, then to the left, then to both sides.
        {"Polygon", "", "100,100 200,150 100,200", "press 90 150", {}, "100,100 200,150 100,200"},
        {"Polygon", "", "100,150 200,100 200,200", "press 210 150", {}, "100,150 200,100 200,200"},
        {"Polygon", "", "150,100 200,150 150,200 100,150", "press 150 150 release 150 150", Moved,
         "150,100 200,150 150,200 100,150"},
        {"Polygon", "", "150,100 200,150 150,200 100,150", "press 90 150", {}, "150,100 200,150 150,200 100,150"},
        {"Polygon", "", Square, "press 90 100", {}, Square},
        {"Polygon", "", Square, "press 90 200", {}, Square},
        {"Polygon", "EnableRBtnDelete", Square, "right 250 150 right 150 150 right 150 150", Removed, ""},
        {"Polygon", "EnableRBtnDelete", Square, "right 203 150", Removed, ""},

        {"BrokenLine", "Convex", Square, "press 200 199 move 160 160 move 140 140 release 9 9", Reshaped,
         "100,100 200,100 160,160 100,200"},
        {"BrokenLine", "", Hook, "click 180 120 click 152 150 press 150 98", {}, Hook}, // on no segment, or outside
        {"BrokenLine", "", Hook, "press 150 102 release 30 92 release 150 103.9", Moved,
         "100,101 200,101 200,201"}, // the first release would leave the view and lets nothing go
        {"BrokenLine", R"({"CanMove":false})", Hook, "press 150 102 move 140 92 release 9 9", Moved, Hook},
        {"BrokenLine", R"({"CanAdjust":false})", Hook, "click 150 102 click 200 100", {}, Hook},
        {"BrokenLine", "EnableRBtnDelete", Hook, "right 148 152", {}, Hook}, // beside the edge that would close it
        {"BrokenLine", "EnableRBtnDelete", Hook, "right 180 120", Removed, ""},
        {"BrokenLine", "EnableRBtnDelete", Hook, "right 150 98", Removed, ""},
        {"BrokenLine", "EnableRBtnDelete", Hook, "press 150 102 right 9 9 right 150 98", RemovedWhileMoved, ""},
        {"BrokenLine", "EnableRBtnDelete", Hook, "press 100 100 right 180 120", RemovedWhileReshaped, ""},
        {"BrokenLine", "", Hook, "press 100 100 right 180 120 release 100 100", Reshaped, Hook},

        {"VirablePolygon", "", Hook, "right 200 150 right 150 100", {}, "100,100 200,100 200,150 200,200"},
        {"VirablePolygon", "", Hook, "right 150 153", {}, "150,153 100,100 200,100 200,200"},
        {"VirablePolygon", "Convex", Hook, "right 150 103", {}, "100,100 150,103 200,100 200,200"},
        {"VirablePolygon", "EnableRBtnDelete", Hook, "right 180 120", {}, Hook}, // right presses are for vertices
    });
}

TEST(Paths, NeedAsManyPointsAsTheHostAsksFor) {
    for (const char* type : {"Polygon", "BrokenLine"}) {
        for (const auto& [minimum, needed] : {std::make_pair(4, 4), std::make_pair(5, 5), std::make_pair(3, 3)}) {
            ScenarioHost host(GridView, GridView);
            const ShapeID shape = host.Add(type);
            host.container.SetPointLimits(shape, 10, minimum);
            int points = 0;
            for (const PointF& corner :
                 {PointF{100, 100}, PointF{200, 100}, PointF{250, 150}, PointF{200, 200}, PointF{100, 200}}) {
                host.Click(corner.x, corner.y);
                host.TakeLog();
                host.RightPress(9, 9);
                ++points;
                if (!host.TakeLog().empty()) {
                    break;
                }
            }
            EXPECT_EQ(points, needed) << type;
        }
    }
}

TEST(Paths, AreDrawnOnTheSurface) {
    ScenarioHost host;
    const ShapeID polygon = host.Add("Polygon");
    EXPECT_EQ(host.Paint(), Lines{});
    Act(host, "click 9.5 9 click 90 9 move 850 50.5");
    EXPECT_EQ(host.Paint(), (Lines{"line (9.5,9)-(90,9) w2 yellow", "line (90,9)-(800,50) w2 yellow",
                                   "caption \"\" at (9.5,9)(90,9) yellow clip 0,0,800,600"}));
    Act(host, "click 90 80 right 9 9");
    EXPECT_EQ(host.Paint(),
              (Lines{"line (9.5,9)-(90,9) w2 yellow", "line (90,9)-(90,80) w2 yellow", "line (90,80)-(9.5,9) w2 yellow",
                     "caption \"\" at (9.5,9)(90,9)(90,80) yellow clip 0,0,800,600", "rect (6.5,6)-(12.5,12) w2 yellow",
                     "rect (87,6)-(93,12) w2 yellow", "rect (87,77)-(93,83) w2 yellow"}));
    host.container.SelectShape(polygon, false);
    host.container.RedrawShape(polygon);
    EXPECT_EQ(host.container.SelectedShape(), polygon) << "waits for its first click, selected";
    host.container.DeleteShape(polygon);

    const ShapeID line = host.Add("BrokenLine");
    host.container.SetCaption(line, "way");
    Act(host, "click 9 9 click 90 9");
    Act(host, "move -9 40.5");
    EXPECT_EQ(host.Paint(), (Lines{"line (9,9)-(90,9) w2 yellow", "line (90,9)-(0,40) w2 yellow",
                                   "rect (6,6)-(12,12) w2 yellow", "rect (87,6)-(93,12) w2 yellow"}));
    host.container.SetPointLimits(line, 3, 3);
    host.Click(90, 80);
    EXPECT_EQ(host.Paint()[2], "caption \"way\" at (9,9)(90,9)(90,80) yellow clip 0,0,800,600");
}

TEST(Paths, GrowBeyondAMaximumThatTheyNeverMeet) {
    for (const char* type : {"Polygon", "BrokenLine"}) {
        for (const int maximum : {-1, 0, 1, 2}) {
            ScenarioHost host(GridView, GridView);
            const ShapeID shape = host.Add(type);
            Act(host, "click 100 100 click 200 100");
            host.container.SetPointLimits(shape, maximum, 4); // below the count
            Act(host, "click 200 200 right 9 9 click 150 250 click 100 200 right 9 9");
            EXPECT_EQ(host.Config(shape), Rule("100,100 200,100 200,200 150,250 100,200")) << type << maximum;
        }
    }
}

TEST(Polygon, PointsAcrossItsFirstEdge) {
    // The mark across the first edge ends 20 pixels above and below it; the inside is below, or above.
    const char* const above = "100,100 200,100 200,20";
    using Case = std::tuple<int, const char*, std::string>;
    for (const auto& [direction, points, expected] :
         {Case{0, Hook, "120 120 "}, Case{0, above, "80 80 "}, Case{1, Hook, "80 80 "}, Case{1, above, "120 120 "},
          Case{2, Hook, "120 120 80 80 "}, Case{3, Hook, ""}}) {
        ScenarioHost host(GridView, GridView);
        host.container.SetDirection(host.Add("Polygon", Rule(points), R"({"LineThickness":5})"), direction);
        const Lines drawn = host.Paint();
        EXPECT_EQ(drawn[3], drawn[2]) << "the closing edge once more";
        EXPECT_EQ(drawn[4], "line (150,80)-(150,120) w2 yellow");
        std::string tips;
        for (size_t i = 5; drawn[i].find(" w5 yellow") != std::string::npos; ++i) {
            tips += drawn[i].substr(10, drawn[i].find(')') - 10) + " ";
        }
        EXPECT_EQ(tips, expected) << points;
    }
}

TEST(Polygon, TakesTheDirectionsOfAStyle) {
    for (const int direction : {-2, -1, 0, 5, 6}) {
        ScenarioHost host(GridView, GridView);
        const std::string style = "{\"Direction\":" + std::to_string(direction) + "}";
        host.container.ShowHandles(host.Add("Polygon", Rule(Hook), style), false);
        const Lines drawn = host.Paint();
        const auto marks = std::count(drawn.begin(), drawn.end(), "line (150,80)-(150,120) w2 yellow");
        EXPECT_EQ(marks, direction >= 0 && direction <= 5 ? 1 : 0) << direction;
    }
}

TEST(Paths, ReadTheirConfigurationOrRefuseIt) {
    std::string twenty = "1,1";
    while (twenty.size() < 20 * 4 - 1) {
        twenty += " 1,1";
    }
    Check({
        {"Polygon", "", R"({"rule":[[100.6,100],null,[200,1e2],[200,200]]})", "", {}, "101,100 200,100 200,200"},
        {"Polygon", "", "1,1 9,9", "", {}, ""}, // complete, but not written
        {"Polygon", "", R"({"other":[[1,1]]})", "press 9 9", On, ""},
        {"Polygon", "", R"({"rule":[5]})", "", {}, Refused},
        {"Polygon", "", twenty + " 1,1", "", {}, Refused},
        {"BrokenLine", "", R"({"rule":[5,[1,1],{},[9.6,9]]})", "", {}, "1,1 10,9"},
        {"BrokenLine", "", "1,1", "press 9 9", {}, ""},
    });
    ScenarioHost host;
    EXPECT_NE(host.Add("BrokenLine", Rule(twenty)), 0U);
}

TEST(Paths, CopyTheirConfigurationEachByItsOwnSizeRule) {
    // A buffer of just the polygon's text takes it without the terminating zero; the broken line loses its line feed.
    const std::string text = Rule(Hook) + "\n";
    for (const auto& [type, copied] :
         {std::make_pair("Polygon", text), std::make_pair("BrokenLine", Rule(Hook) + '\0')}) {
        ScenarioHost host(GridView, GridView);
        const ShapeID shape = host.Add(type, Rule(Hook));
        const auto size = static_cast<int32_t>(text.size());
        std::string buffer(text.size(), '#');
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.Handle(), shape, buffer.data(), size - 1), 0U);
        EXPECT_EQ(GetVideoAnalyseShapeConfigData(host.container.Handle(), shape, buffer.data(), size), 1U);
        EXPECT_EQ(buffer, copied);
    }
}

} // namespace
} // namespace rulecanvas::test
