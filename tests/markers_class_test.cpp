#include "rulecanvas/surface.hpp"
#include "shape/shape_factory.h"

#include <gtest/gtest.h>

namespace rulecanvas {
namespace {

class FillCounter final : public Surface {
  public:
    int filled = 0;
    void fillEllipse(const PointF&, const PointF&, float, const ColorF&, const ColorF&) override { ++filled; }
};

TEST(SpotClass, StaysSolidWhenItIsConfiguredAgain) {
    const std::shared_ptr<CVideoAnalyseShape> spot = CShapeFactory::GetInstance().CreateShape("SpotShape");
    FillCounter counter;
    for (const char* word : {"", "solid", "outline", ""}) {
        ASSERT_TRUE(spot->SetVideoAnalyseShapeData("rule", R"({"rule":[[1,1]]})", word));
        spot->DrawHook(0, &counter);
    }
    EXPECT_EQ(counter.filled, 3);
}

} // namespace
} // namespace rulecanvas
