// The indexes and lists behind a press and a paint.

#include "fuzz/two_scenes.h"
#include "rulecanvas/surface.hpp"
#include "shape/claim.h"
#include "shape/shape_factory.h"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <tuple>

namespace rulecanvas::test {
namespace {

TEST(PressIndex, ChangesNothingButTheTime) {
    for (unsigned seed = 0; seed < 30; ++seed) {
        std::mt19937 random(seed);
        TwoScenes scenes([&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); });
        for (int step = 0; step < 400; ++step) {
            ASSERT_TRUE(scenes.Step()) << "seed " << seed << ", step " << step;
        }
    }
}

TEST(PressIndex, KeepsNoShapeThatWasDeleted) {
    for (const bool all : {false, true}) {
        GridScene scene;
        const ShapeID id = scene.Add("Rect", Corners);
        scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, {9, 9});
        const std::weak_ptr<CVideoAnalyseShape> shape = scene.OnlyShape();
        Points left;
        if (all) {
            const ShapePtr held = scene.OnlyShape(); // as by a call on another thread
            scene.container.DeleteAllShapes();
            held->GetShapePoints(left);
        } else {
            scene.container.DeleteShape(id);
        }
        EXPECT_TRUE(shape.expired());
        EXPECT_EQ(left, Points{});
    }
}

TEST(ListenerList, CallsNoneThatIsGoneNotEvenInAWalkThatHasBegun) {
    ListenerList list(&CVideoAnalyseShape::drawTicket);
    ShapeVector shapes;
    for (int i = 0; i < 5; ++i) {
        shapes.push_back(CShapeFactory::GetInstance().CreateShape("Rect"));
        list.Register(shapes.back());
    }
    const auto before = list.Snapshot();
    const auto called = [&](const ListenerList::Entries& walked) {
        std::string places;
        list.Invoke(walked, [&](const CVideoAnalyseShape& shape) {
            const auto isShape = [&](const ShapePtr& other) { return other.get() == &shape; };
            places += std::to_string(std::find_if(shapes.begin(), shapes.end(), isShape) - shapes.begin());
        });
        return places;
    };
    using Step = std::tuple<size_t, const char*, size_t>;
    for (const auto& [gone, left, places] :
         {Step{2, "0134", 5}, Step{0, "134", 5}, Step{4, "13", 2}, Step{3, "1", 2}, Step{3, "1", 2}, Step{1, "", 0}}) {
        list.Unregister(*shapes[gone]);
        EXPECT_EQ(called(*before), left);
        EXPECT_EQ(called(*list.Snapshot()), left);
        EXPECT_EQ(list.Snapshot()->size(), places) << "holes are filled now and then";
    }
    list.Register(shapes[3]);
    list.Register(shapes[0]);
    EXPECT_EQ(called(*before), "");
    EXPECT_EQ(called(*list.Snapshot()), "30");
}

int LevelOf(CVideoAnalyseShape& shape, float x, float y) {
    int level = Miss;
    shape.HitTestLButtonDown({RULECANVAS_MOUSE_LEFT_DOWN, 0, 0, x, y, 0, 0}, level);
    return level;
}

TEST(Claim, IsHardlyWiderThanWhatTheFigureAnswers) {
    for (const Type& type : Types) {
        GridScene scene;
        scene.Add(type.name, type.config);
        Surface surface;
        scene.container.OnDraw(0, surface); // which places a pixel counter
        CVideoAnalyseShape& shape = *scene.OnlyShape();
        const Claim claim = shape.GetClaim();
        shape.SetSelectedState(false); // a selected one is asked in any case
        EXPECT_EQ(claim.answersOutside, LevelOf(shape, 7000, 7000) == Outside) << type.name;
        if (!std::isfinite(claim.left)) {
            continue;
        }
        const bool isLine = shape.GetShapeType() != 0 && shape.GetShapeType() != RectangleType;
        const float slack = isLine ? 3.5F : 1.75F; // a line's points reach no farther than its segments
        int sides = 0;
        for (const auto& [x, y, across, down] : {std::make_tuple(claim.left + slack, claim.top, 0.0F, 0.5F),
                                                 {claim.right - slack, claim.top, 0.0F, 0.5F},
                                                 {claim.left, claim.top + slack, 0.5F, 0.0F},
                                                 {claim.left, claim.bottom - slack, 0.5F, 0.0F}}) {
            PointF at{x, y};
            while (at.x <= claim.right && at.y <= claim.bottom && LevelOf(shape, at.x, at.y) <= Outside) {
                at = PointF{at.x + across, at.y + down};
            }
            sides += at.x <= claim.right && at.y <= claim.bottom ? 1 : 0;
        }
        EXPECT_EQ(sides, 4) << type.name;
    }
}

TEST(Claim, HoldsItsBordersAndEverythingForAPointThatIsNoNumber) {
    const Claim claim{1, 2, 3, 4, false};
    EXPECT_TRUE(claim.Holds({1, 2}) && claim.Holds({3, 4}));
    EXPECT_FALSE(claim.Holds({0, 3}) || claim.Holds({4, 3}) || claim.Holds({2, 1}) || claim.Holds({2, 5}));
    constexpr float endless = std::numeric_limits<float>::infinity();
    for (const PointF& point : {PointF{endless, 0}, {0, -endless}, {NAN, 0}, {0, NAN}}) {
        EXPECT_TRUE(Claim::Around({{1, 1}, point}, 1, false).Holds({-1e9F, 1e9F}));
    }
}

} // namespace
} // namespace rulecanvas::test
