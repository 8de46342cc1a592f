// Geometry, and the few things that no export reaches.

#include "geometry/arrows.h"
#include "geometry/grid.h"
#include "geometry/hit_tests.h"
#include "geometry/rectangles.h"
#include "geometry/segments.h"
#include "platform/trace.h"
#include "shape/shape_factory.h"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace rulecanvas {
namespace {

TEST(Geometry, TruncatesTowardZeroAndSaturates) {
    for (const auto& [value, expected] : std::initializer_list<std::pair<double, int>>{
             {1.9, 1}, {-1.9, -1}, {1e20, INT32_MAX}, {-1e20, INT32_MIN}, {std::nan(""), 0}}) {
        EXPECT_EQ(TruncateToInt(value), expected);
    }
    EXPECT_EQ(Span(INT32_MIN, INT32_MAX), INT32_MAX);
    EXPECT_EQ(ToGrid({5, 5}, {0, 0}).x, 0) << "of a view without a size";
    EXPECT_EQ(ToGrid({1, 1}, {1, 1}).x, GridSpan);
}

TEST(Geometry, HasTheTolerancesOfTheEditor) {
    EXPECT_EQ(VertexIndex(Points{{50, 50}, {10, 10}, {11, 11}}, {14.9F, 5.1F}), 1);
    EXPECT_EQ(VertexIndex(Points{{10, 10}}, {15, 10}), -1);
    struct Case {
        PointF a, b, near, beyond;
    };
    for (const Case& c :
         {Case{{10, 0}, {10, 50}, {13, 20}, {13.5F, 20}}, Case{{10, 0}, {10, 50}, {10, 53}, {10, 53.5F}},
          Case{{0, 10}, {50, 10}, {20, 13}, {20, 13.5F}}, Case{{0, 0}, {50, 50}, {24, 20}, {24.5F, 20}},
          Case{{0, 0}, {25, 50}, {14, 20}, {14.5F, 20}}, Case{{0, 0}, {50, 50}, {-3, -3}, {-5, -5}},
          Case{{100, 100}, {300, 150}, {200, 129}, {200, 129.5F}},
          Case{{100, 100}, {300, 150}, {200, 121}, {200, 120.5F}}, Case{{7, 7}, {7, 7}, {10, 10}, {10, 10.5F}}}) {
        for (const auto& [from, to] : {std::make_pair(c.a, c.b), std::make_pair(c.b, c.a)}) {
            EXPECT_TRUE(NearSegment(from, to, c.near)) << c.near.x << "," << c.near.y;
            EXPECT_FALSE(NearSegment(from, to, c.beyond)) << c.beyond.x << "," << c.beyond.y;
        }
    }
}

TEST(Geometry, ClampsAPointAsSeenFromAnAnchor) {
    const ClientRect view{-5, -5, 100, 80};
    for (const auto& [p, expected] : std::initializer_list<std::pair<PointF, PointF>>{
             {{60.9F, 70.9F}, {60, 70}}, {{300, 300}, {100, 80}}, {{-9, 300}, {0, 80}}, {{-9, -9}, {0, 0}}}) {
        EXPECT_EQ(ClampRelative({50, 50}, p, view), expected);
    }
    EXPECT_EQ(ClampRelative({300, 300}, {300, 300}, view), (PointF{100, 80})) << "of equals the anchor is the top left";
}

TEST(Geometry, CrossesASegmentWithItsDirectionMarkUpperEndFirst) {
    struct Case {
        PointF a, b, upper, lower;
    };
    for (const Case& c : {Case{{0, 50}, {100, 50}, {50, 30}, {50, 70}}, Case{{50, 0}, {50, 100}, {30, 50}, {70, 50}},
                          Case{{0, 0}, {60, 80}, {46, 28}, {14, 52}}, Case{{60, 0}, {0, 80}, {14, 28}, {46, 52}}}) {
        const CrossStroke stroke = DirectionMarkOf(c.a, c.b);
        EXPECT_LT(std::hypot(stroke.upper.x - c.upper.x, stroke.upper.y - c.upper.y), 0.01);
        EXPECT_LT(std::hypot(stroke.lower.x - c.lower.x, stroke.lower.y - c.lower.y), 0.01);
    }
    const ArrowBarbs up = BarbsOf({10, 50}, {10, 10}, ArrowHeadHalfAngle());
    EXPECT_GT(std::min(up.first.y, up.second.y), 18) << "a vertical arrow has two barbs too, behind its tip";
    EXPECT_LT(std::min(up.first.x, up.second.x), 6);
    EXPECT_GT(std::max(up.first.x, up.second.x), 14);
    const ArrowBarbs slanted = BarbsOf({0, 0}, {40, 30}, ArrowHeadHalfAngle());
    EXPECT_LT(std::hypot(slanted.first.x - 30.072, slanted.first.y - 28.804), 0.001);
    EXPECT_LT(std::hypot(slanted.second.x - 36.072, slanted.second.y - 20.804), 0.001);
}

TEST(Geometry, SegmentsMeetWhenTheyCrossOrTouch) {
    struct Case {
        PointF a, b;
        bool meet;
    };
    for (const Case& c : {Case{{-5, 5}, {5, 5}, true}, Case{{-5, 5}, {0, 5}, true}, Case{{-5, 5}, {-1, 5}, false},
                          Case{{-5, 11}, {5, 11}, false}, Case{{0, 10}, {0, 20}, true}, Case{{0, 11}, {0, 20}, false},
                          Case{{0, -9}, {0, -1}, false}, Case{{0, 3}, {0, 4}, true}, Case{{1, 0}, {1, 10}, false},
                          Case{{-0.05F, 5}, {0.05F, 5}, true}}) {
        for (const bool mirrored : {false, true}) {
            const auto at = [&](const PointF& p) { return mirrored ? PointF{p.y, p.x} : p; };
            EXPECT_EQ(SegmentsCross(at({0, 0}), at({0, 10}), at(c.a), at(c.b)), c.meet) << c.a.x << "," << c.a.y;
            EXPECT_EQ(SegmentsCross(at(c.b), at(c.a), at({0, 10}), at({0, 0})), c.meet) << c.a.x << "," << c.a.y;
        }
    }
    EXPECT_FALSE(LastEdgeCrosses({}) || ClosingEdgeCrosses({}));
}

TEST(Geometry, LinesMeetUnlessTheyAreParallel) {
    EXPECT_EQ(LineIntersection({0, 0}, {4, 2}, {0, 5}, {2, 4}), (PointF{5, 2.5F}));
    EXPECT_EQ(LineIntersection({1, 7}, {2, 7}, {4, 3}, {4, 9}), (PointF{4, 7}));
    EXPECT_EQ(LineIntersection({0, 0}, {4, 2}, {9, 9}, {13, 11}), std::nullopt);
}

TEST(Geometry, TheInsideOfARingDoesNotDependOnItsBeginning) {
    Points ring{{0, 0}, {60, 0}, {60, 60}, {30, 20}, {0, 60}};
    for (int direction = 0; direction < 2; ++direction) {
        for (size_t turn = 0; turn < ring.size(); ++turn) {
            for (const PointF& in : {PointF{10, 10}, {50, 10}, {5, 45}, {55, 45}, {30, 19}}) {
                EXPECT_TRUE(InPolygon(ring, in)) << in.x << "," << in.y << " in turn " << turn;
            }
            for (const PointF& out : {PointF{-1, 20}, {61, 20}, {30, 40}, {-1, 0}, {61, 0}, {44, 40}, {16, 40}}) {
                EXPECT_FALSE(InPolygon(ring, out)) << out.x << "," << out.y << " in turn " << turn;
            }
            EXPECT_TRUE(InPolygon(ring, {0, 30})) << "a left edge is inside, a right one is not";
            EXPECT_FALSE(InPolygon(ring, {60, 30}));
            std::rotate(ring.begin(), ring.begin() + 1, ring.end());
        }
        std::reverse(ring.begin(), ring.end());
    }
    // A corner at the height of the point, on either side or on both.
    for (Points corner :
         {Points{{0, 0}, {60, 30}, {0, 60}}, {{0, 30}, {60, 0}, {60, 60}}, {{30, 0}, {60, 30}, {0, 30}}}) {
        for (int direction = 0; direction < 2; ++direction) {
            EXPECT_FALSE(InPolygon(corner, {-1, 30}) || InPolygon(corner, {61, 30}));
            std::reverse(corner.begin(), corner.end());
        }
    }
    EXPECT_TRUE(InPolygon(Points{{0, 0}, {1, 2}, {-5, 2}}, {0, 1}) &&
                InPolygon(Points{{-5, 2}, {1, 2}, {0, 0}}, {0, 1}))
        << "on its inner side by the smallest whole number";
}

TEST(Geometry, KnowsWhichShiftsRound) {
    EXPECT_TRUE(ShiftsExactly({{4000, 1}}, 0.5F, -1));
    for (const PointF& by : {PointF{1e-30F, 0}, PointF{0, 1e-30F}, PointF{0.1F, 0}, PointF{0, 0.1F}}) {
        EXPECT_FALSE(ShiftsExactly({{4000, 4000}}, by.x, by.y));
    }
}

TEST(Trace, TellsWhatWasFoundInsteadAndWhere) {
    static std::string told;
    SetTraceSink([](const char* line) { told = line; });
    test::GridScene scene;
    struct Case {
        const char* type;
        const char* config;
        const char* ending;
    };
    for (const Case& c :
         {Case{"Rect", R"({"rule":"x"})", "expected an array of 2 corners, found a text, at $.rule"},
          Case{"Rect", R"({"rule":true})", "found a boolean, at $.rule"},
          Case{"Rect", R"({"rule":5})", "found a number, at $.rule"}, Case{"Rect", "{}", "found nothing, at $.rule"},
          Case{"Rect", R"({"rule":[["x",1],[2,2]]})", "not convertible to double.), at $.rule"},
          Case{"Rect", R"({"rule":[[1,1]]})", "found an array of 1 element, at $.rule"},
          Case{"OvalShape", R"({"OvalShape":{"a":1,"b":2}})", "found an object of 2 elements, at $.OvalShape"},
          Case{"Circle", "", "\"rule\": expected a registered type, found \"Circle\", at type"}}) {
        EXPECT_EQ(scene.Add(c.type, c.config), 0U);
        EXPECT_EQ(told.substr(told.size() - std::min(told.size(), std::strlen(c.ending))), c.ending);
    }
    scene.container.CreateMainShape(0, "", "Rect", "rule", "", R"({"mosaic":{"size":"x"}})");
    EXPECT_NE(told.find("), at option"), std::string::npos);
    told.clear();
    scene.Add("Rect");
    EXPECT_EQ(told, "") << "nothing was refused";
    SetTraceSink(nullptr);
    const char* const wanted = std::getenv("RULECANVAS_TRACE");
    EXPECT_EQ(IsTracing(), wanted != nullptr && std::strcmp(wanted, "1") == 0);
#ifndef _WIN32 // where lines go to the debugger
    testing::internal::CaptureStderr();
    scene.Add("Circle");
    const std::string written = testing::internal::GetCapturedStderr();
    EXPECT_EQ(written.find("found \"Circle\", at type\n") != std::string::npos, IsTracing());
#endif
}

TEST(Factory, MakesEachTypeWithItsCodeAndItsWayToEnd) {
    std::string codes;
    std::string endingAtOnce;
    for (const test::Type& type : test::Types) {
        const ShapePtr shape = CShapeFactory::GetInstance().CreateShape(type.name);
        codes += std::to_string(shape->GetShapeType());
        endingAtOnce += shape->AwaitsPaint() ? "" : type.name + std::string(" ");
    }
    EXPECT_EQ(codes, "505132111400000");
    EXPECT_EQ(endingAtOnce, "OvalShape CrossShape BigCrossShape SpotShape ");
}

TEST(Factory, KeepsTheFirstRegistrationOfAName) {
    EXPECT_FALSE(CShapeFactory::GetInstance().Register("Rect", nullptr));
    EXPECT_NE(CShapeFactory::GetInstance().CreateShape("Rect"), nullptr);
}

} // namespace
} // namespace rulecanvas
