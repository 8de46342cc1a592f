#include "rulecanvas/surface.hpp"
#include "shape/shape_factory.h"

#include <gtest/gtest.h>

namespace rulecanvas {
namespace {

class EllipseCounter final : public Surface {
  public:
    int stroked = 0;
    int filled = 0;
    void strokeEllipse(const PointF& /*corner1*/, const PointF& /*corner2*/, float /*width*/,
                       const ColorF& /*colour*/) override {
        ++stroked;
    }
    void fillEllipse(const PointF& /*corner1*/, const PointF& /*corner2*/, float /*width*/, const ColorF& /*fill*/,
                     const ColorF& /*outline*/) override {
        ++filled;
    }
};

TEST(SpotClass, StaysSolidWhenItIsConfiguredAgain) {
    const std::shared_ptr<CVideoAnalyseShape> spot = CShapeFactory::GetInstance().CreateShape("SpotShape");
    EllipseCounter counter;
    for (const char* word : {"", "solid", "outline", ""}) {
        ASSERT_TRUE(spot->SetVideoAnalyseShapeData("rule", R"({"rule":[[1,1]]})", word));
        spot->DrawHook(0, &counter);
    }
    EXPECT_EQ(counter.stroked, 1);
    EXPECT_EQ(counter.filled, 3);
}

TEST(SpotClass, BuildsTheSpotWhereItWouldBeDragged) {
    const std::shared_ptr<CVideoAnalyseShape> spot = CShapeFactory::GetInstance().CreateShape("SpotShape");
    Points out;
    EXPECT_FALSE(spot->DragPointsHook(0, {20, 20}, out)) << "no spot yet";
    ASSERT_TRUE(spot->SetVideoAnalyseShapeData("rule", R"({"rule":[[1,1]]})", ""));
    EXPECT_TRUE(spot->DragPointsHook(0, {20, -20}, out));
    EXPECT_EQ(out, Points(1)) << "held inside the view, which has no size here";
}

} // namespace
} // namespace rulecanvas
