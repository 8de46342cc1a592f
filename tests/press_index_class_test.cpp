// The indexes and lists behind a press and a paint.

#include "fuzz/two_scenes.h"
#include "shape/shape_factory.h"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

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
        all ? scene.container.DeleteAllShapes() : static_cast<void>(scene.container.DeleteShape(id));
        EXPECT_TRUE(shape.expired());
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
    for (const auto& [gone, left] : {std::make_pair(2, "0134"), {0, "134"}, {4, "13"}, {3, "1"}, {3, "1"}, {1, ""}}) {
        list.Unregister(*shapes[static_cast<size_t>(gone)]);
        EXPECT_EQ(called(*before), left);
        EXPECT_EQ(called(*list.Snapshot()), left);
        EXPECT_LE(list.Snapshot()->size(), 2 * std::strlen(left)) << "holes are filled now and then";
    }
    list.Register(shapes[3]);
    list.Register(shapes[0]);
    EXPECT_EQ(called(*before), "");
    EXPECT_EQ(called(*list.Snapshot()), "30");
}

} // namespace
} // namespace rulecanvas::test
