// What a figure that owns another one may do with it, and no host can.

#include "container/container.h"
#include "rulecanvas/surface.hpp"
#include "shape/shape_factory.h"
#include "shapes/lines/arrow_line_shape.h"
#include "shapes/lines/x_line_shape.h"

#include <gtest/gtest.h>

namespace rulecanvas {
namespace {

void RULECANVAS_THISCALL ReportClientRect(void* /*target*/, ViewID /*view*/, ClientRect* out) {
    *out = ClientRect{0, 0, 8191, 8191}; // pixels and grid are the same number
}

/// A line in a view, but not among the shapes of the view's container.
template <class Line>
struct Owned {
    std::shared_ptr<CVideoAnalyseContainer> container = CVideoAnalyseContainer::Create(nullptr);
    std::shared_ptr<Line> line;

    template <class... Arguments>
    explicit Owned(const Arguments&... arguments) : line(std::make_shared<Line>(arguments...)) {
        container->SetClientRectDelegate(CDelegate{this, reinterpret_cast<void*>(&ReportClientRect)});
        container->Enable(true);
        line->SetContainer(container.get());
        line->SetViewId(1);
    }
    ~Owned() { line->Retire(); }

    Points PointsNow() const {
        Points points;
        line->GetShapePoints(points);
        return points;
    }

    int StateAfterStroke(const PointF& from, const PointF& to) {
        line->RestartDrawing();
        line->HandleLButtonDownEvent({RULECANVAS_MOUSE_LEFT_DOWN, 1, 0, from.x, from.y, 0, 0}, Busy);
        container->OnMouseEvent({RULECANVAS_MOUSE_LEFT_UP, 1, 0, to.x, to.y, 0, 0});
        return line->GetState();
    }
};

TEST(LineClass, CopiesItsKindAndNamesButNoPoints) {
    Owned<CLineShape> original(LineOrientation::Vertical);
    original.line->SetEventName("event");
    original.line->SetVideoAnalyseShapeData("name", R"({"name":[[10,10],[10,90]]})", "MovedHLine");
    Owned<CLineShape> copy(*original.line);
    EXPECT_EQ(copy.line->GetName() + copy.line->GetEventName(), "nameevent");
    EXPECT_EQ(copy.StateAfterStroke({10, 10}, {50, 90}), Drawing) << "level and upright at once: never long enough";
    copy.line->SetShapePoints({{10, 10}, {10, 90}});
    EXPECT_TRUE(copy.line->MoveHook(5, 7));
    EXPECT_EQ(copy.PointsNow(), (Points{{10, 17}, {10, 97}})) << "its own points, up and down only";
}

TEST(LineClass, WithoutAnEventNameIsDrawnInsideItsLimitAreaOnly) {
    Owned<CXLineShape> area;
    area.line->SetVideoAnalyseShapeData("u", R"({"u":[[30,90],[0,90],[0,0],[90,0],[90,90],[60,90],[60,30],[30,30]]})",
                                        nullptr);
    Owned<CLineShape> limited(LineOrientation::Free);
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {80, 10}), Waiting) << "no area, nothing inside";
    EXPECT_TRUE(limited.line->SetLimitArea(area.line.get()));
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {45, 60}), Waiting) << "ends outside";
    EXPECT_EQ(limited.StateAfterStroke({45, 80}, {10, 80}), Waiting) << "comes in over the closing edge";
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {80, 10}), Complete);
}

TEST(LineClass, IsClippedToAPolygon) {
    const auto clipped = [](const Points& points, const char* key = "area", int mode = 0) {
        Owned<CLineShape> owned(LineOrientation::Free);
        owned.line->SetShapePoints(points);
        const char* square = R"({"area":[[100,100],[200,100],[200,200],[100,200]]})";
        const bool done = owned.line->ClipToPolygon(square, key, mode);
        EXPECT_EQ(done, owned.PointsNow() != points);
        return owned.PointsNow();
    };
    const Points inside{{120, 150}, {130, 150}};
    EXPECT_EQ(clipped(inside), (Points{{200, 150}, {100, 150}}));
    EXPECT_EQ(clipped(inside, "area", 1), inside);
    EXPECT_EQ(clipped(inside, "other"), inside);
    EXPECT_EQ(clipped({{0, 0}, {50, 50}}), (Points{{100, 100}, {200, 200}})) << "from corner to corner";
    EXPECT_EQ(clipped({{0, 200}, {200, 0}}), (Points{{0, 200}, {200, 0}})) << "one corner is not enough";
}

TEST(LineClass, AsksItsOwnerBeforeItChanges) {
    struct Owner {
        bool content = false;
        bool Decide(const Points& path, bool /*complete*/) { return content || path.size() == 1; }
    } owner;
    Owned<CArrowLineShape> arrow;
    arrow.line->SetEventName("event");
    arrow.line->ValidationHook = decltype(arrow.line->ValidationHook)::Bind<&Owner::Decide>(&owner);
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Waiting) << "refused: to be drawn again";
    owner.content = true;
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Complete);
    Points dragged;
    EXPECT_TRUE(arrow.line->DragPointsHook(0, {20, 20}, dragged));
    owner.content = false;
    EXPECT_FALSE(arrow.line->DragPointsHook(0, {20, 20}, dragged));
    EXPECT_FALSE(arrow.line->MoveHook(1, 1));
}

TEST(SpotClass, StaysSolidWhenItIsConfiguredAgain) {
    struct : Surface {
        int filled = 0;
        void PaintEllipse(const PointF&, const PointF&, float, const ColorF&, const ColorF&) override { ++filled; }
    } surface;
    const ShapePtr spot = CShapeFactory::GetInstance().CreateShape("SpotShape");
    for (const char* word : {"", "solid", "outline", ""}) {
        ASSERT_TRUE(spot->SetVideoAnalyseShapeData("rule", R"({"rule":[[1,1]]})", word));
        spot->DrawHook(0, &surface);
    }
    EXPECT_EQ(surface.filled, 3);
}

} // namespace
} // namespace rulecanvas
