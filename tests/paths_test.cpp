// Polygons and broken lines: figures that are drawn click by click.

#include "support/stories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace rulecanvas::test {
namespace {

constexpr const char* Hook = "100,100 200,100 200,200";

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
    Act(host, "press 50 9 move 50 19");
    EXPECT_EQ(host.Paint()[0], "line (9,19)-(90,19) w2 yellow") << "the whole line follows";
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
    ScenarioHost host(GridView, GridView);
    host.container.ShowHandles(host.Add("Polygon", Rule("9,9"), R"({"Direction":2})"), false);
    EXPECT_EQ(host.Paint(), (Lines{"line (9,9)-(9,9) w2 yellow", "line (9,9)-(9,9) w2 yellow",
                                   "caption \"\" at (9,9) yellow clip 0,0,8191,8191"}))
        << "one point has no first edge";
}

} // namespace
} // namespace rulecanvas::test
