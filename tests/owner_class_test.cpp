// What a figure that owns another one may do with it, and no host can.

#include "container/container.h"
#include "rulecanvas/surface.hpp"
#include "shape/paint_pass.h"
#include "shape/shape_factory.h"
#include "shapes/lines/line_shape.h"
#include "shapes/paths/click_path_shape.h"
#include "shapes/regions/rectangle_shape.h"

#include <gtest/gtest.h>

namespace rulecanvas {
namespace {

constexpr ViewID OwnersView = 1;
constexpr ClientRect GridRect{0, 0, 8191, 8191}; // pixels and grid are the same number

void RULECANVAS_THISCALL ReportClientRect(void* /*target*/, ViewID /*view*/, ClientRect* out) {
    *out = GridRect;
}

void RULECANVAS_THISCALL CountNotification(void* target, const char* /*text*/, Bool32 /*flag*/) {
    ++*static_cast<int*>(target);
}

/// A shape in a view, but not among the shapes of the view's container.
template <class Shape = CVideoAnalyseShape>
struct Owned {
    CVideoAnalyseContainer container{nullptr};
    std::shared_ptr<Shape> shape;
    int notifications = 0;

    explicit Owned(const char* type)
        : Owned(std::static_pointer_cast<Shape>(CShapeFactory::GetInstance().CreateShape(type))) {}
    explicit Owned(std::shared_ptr<Shape> made) : shape(std::move(made)) {
        container.SetClientRectDelegate(CDelegate{this, reinterpret_cast<void*>(&ReportClientRect)});
        container.SetNotifyDelegate(CDelegate{&notifications, reinterpret_cast<void*>(&CountNotification)});
        container.Enable(true);
        shape->SetContainer(&container);
        shape->SetViewId(OwnersView, GridRect);
    }
    ~Owned() { shape->Retire(); }

    Points PointsNow() const {
        Points points;
        shape->GetShapePoints(points);
        return points;
    }

    bool Configure(const char* name, const char* data, const char* option = nullptr) {
        return !shape->SetVideoAnalyseShapeData({name, data, option, GridRect});
    }

    void Press(const PointF& at, int level) {
        const ContainerMouseEvent event{RULECANVAS_MOUSE_LEFT_DOWN, OwnersView, 0, at.x, at.y, 0, 0};
        shape->HandleLButtonDownEvent(PointerEvent{event, GridRect}, level);
    }

    void Send(uint32_t code, const PointF& at) { container.OnMouseEvent({code, OwnersView, 0, at.x, at.y, 0, 0}); }

    int StateAfterStroke(const PointF& from, const PointF& to) {
        shape->RestartDrawing();
        Press(from, Busy);
        Send(RULECANVAS_MOUSE_LEFT_UP, to);
        return shape->GetState();
    }
};

TEST(OwnedLine, CopiesItsKindAndNamesButNoPoints) {
    Owned<CLineShape> original("VerticalLineShape");
    original.shape->SetEventName("event");
    original.Configure("name", R"({"name":[[10,10],[10,90]]})", "MovedHLine");
    Owned<CLineShape> copy(std::make_shared<CLineShape>(*original.shape));
    EXPECT_EQ(copy.shape->GetName() + copy.shape->GetEventName(), "nameevent");
    EXPECT_EQ(copy.StateAfterStroke({10, 10}, {50, 90}), Drawing) << "level and upright at once: never long enough";
    copy.shape->SetShapePoints({{10, 10}, {10, 90}});
    EXPECT_TRUE(copy.shape->MoveShape(5, 7));
    EXPECT_EQ(copy.PointsNow(), (Points{{10, 17}, {10, 97}})) << "its own points, up and down only";
}

TEST(OwnedLine, WithoutAnEventNameIsDrawnInsideItsLimitAreaOnly) {
    Owned<> area("XLineShape");
    area.Configure("u", R"({"u":[[30,90],[0,90],[0,0],[90,0],[90,90],[60,90],[60,30],[30,30]]})");
    Owned<CLineShape> limited("LineShape");
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {80, 10}), Waiting) << "no area, nothing inside";
    EXPECT_TRUE(limited.shape->SetLimitArea(area.shape.get()));
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {45, 60}), Waiting) << "ends outside";
    EXPECT_EQ(limited.StateAfterStroke({45, 80}, {10, 80}), Waiting) << "comes in over the closing edge";
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {80, 10}), Complete);
}

TEST(OwnedLine, IsClippedToAPolygon) {
    const auto clipped = [](const Points& points, const char* key = "area", int mode = 0) {
        Owned<CLineShape> owned("LineShape");
        owned.shape->SetShapePoints(points);
        const char* square = R"({"area":[[100,100],[200,100],[200,200],[100,200]]})";
        const bool done = owned.shape->ClipToPolygon(square, key, mode);
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

TEST(OwnedArrow, AsksItsOwnerBeforeItChanges) {
    struct Owner {
        bool content = false;
        bool Decide(const Points& path, bool /*complete*/) { return content || path.size() == 1; }
        bool Check(const Points& path) { return path[0].x < 50; }
    } owner;
    Owned<> arrow("ArrowLineShape");
    OwnerHooks& hooks = arrow.shape->Hooks();
    hooks.ValidationHook = decltype(hooks.ValidationHook)::Bind<&Owner::Decide>(&owner);
    hooks.GeometryCheckHook = decltype(hooks.GeometryCheckHook)::Bind<&Owner::Check>(&owner);
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Waiting) << "refused: to be drawn again";
    owner.content = true;
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Complete);
    const Points drawn = arrow.PointsNow();
    Points dragged;
    EXPECT_TRUE(arrow.shape->BuildDragPoints(0, {20, 20}, dragged));
    EXPECT_EQ(dragged, (Points{{20, 20}, {90, 10}}));
    EXPECT_FALSE(arrow.shape->BuildDragPoints(0, {60, 20}, dragged)) << "the geometry is checked, too";
    EXPECT_FALSE(arrow.shape->MoveShape(50, 0));
    owner.content = false;
    EXPECT_FALSE(arrow.shape->BuildDragPoints(0, {20, 20}, dragged));
    EXPECT_FALSE(arrow.shape->MoveShape(1, 1));
    EXPECT_EQ(arrow.PointsNow(), drawn);
}

TEST(OwnedShape, LetsItsOwnerHearAndPlaceInsteadOfTheHost) {
    struct Owner {
        int selections = 0;
        int states = 0;
        int creations = 0;
        void Select(int, int) { ++selections; }
        void State(int, int) { ++states; }
        bool Place(ViewID, const PointF& point) { return point.x < 100; }
        void Create(const ContainerMouseEvent& event) { creations += event.x == 90 ? 1 : 0; }
    } owner;
    Owned<CRectangleShape> rectangle("Rect");
    OwnerHooks& hooks = rectangle.shape->Hooks();
    hooks.SelectNotifyHook = decltype(hooks.SelectNotifyHook)::Bind<&Owner::Select>(&owner);
    hooks.StateNotifyHook = decltype(hooks.StateNotifyHook)::Bind<&Owner::State>(&owner);
    hooks.AdjustPointCoordinateHook = decltype(hooks.AdjustPointCoordinateHook)::Bind<&Owner::Place>(&owner);
    hooks.CreationFinishedHook = decltype(hooks.CreationFinishedHook)::Bind<&Owner::Create>(&owner);
    rectangle.Configure("rule", "");
    EXPECT_EQ(rectangle.StateAfterStroke({100, 10}, {10, 90}), Waiting) << "not placed there";
    EXPECT_EQ(rectangle.StateAfterStroke({10, 10}, {90, 90}), Complete);
    EXPECT_EQ(std::vector<int>({owner.selections, owner.states, owner.creations}), std::vector<int>({1, 1, 1}));
    EXPECT_EQ(rectangle.notifications, 0);
}

TEST(OwnedRectangle, IsPlacedByItsOwner) {
    Owned<CRectangleShape> owned("Rect");
    CRectangleShape& rectangle = *owned.shape;
    rectangle.PlaceAt({100, 100}, 41, 20);
    EXPECT_EQ(rectangle.GetState(), Complete);
    Points corners{{1, 1}};
    rectangle.GetShapePoints(corners);
    EXPECT_EQ(corners, (Points{{1, 1}, {80, 90}, {120, 90}, {120, 110}, {80, 110}})) << "appended";
    rectangle.PlaceAt({100, 100}, 8, 8);
    rectangle.SetShapePoints({{0, 0}});
    EXPECT_EQ(owned.PointsNow(), Points(corners.begin() + 1, corners.end()))
        << "neither too small a place nor too short a list";
    PointF press{};
    EXPECT_TRUE(rectangle.GetPressPoint(press));
    EXPECT_EQ(press, (PointF{96, 96})) << "the anchor of the latest placing";
    rectangle.SetShapeDirection(0, 4);
    EXPECT_EQ(rectangle.GetShapeDirection(), 4);
}

TEST(OwnedRectangle, MustCoverItsCropLimit) {
    Owned<CRectangleShape> owned("Rect");
    owned.shape->PlaceAt({100, 100}, 100, 100);
    owned.shape->SetCropLimit({60, 60, 140, 140});
    struct Case {
        PointF press, refused, accepted;
        ShapeState during;
    };
    for (const Case& c :
         {Case{{150, 150}, {139, 150}, {145, 150}, Adjusting}, Case{{100, 100}, {111, 100}, {105, 95}, Moving}}) {
        owned.Press(c.press, Inside);
        owned.Send(RULECANVAS_MOUSE_LEFT_UP, c.refused);
        EXPECT_EQ(owned.shape->GetState(), c.during) << "the drag goes on";
        owned.Send(RULECANVAS_MOUSE_LEFT_UP, c.accepted);
        EXPECT_EQ(owned.shape->GetState(), Complete);
    }
}

/// A polygon's move is judged by its vertices, shifted back by what the release lies beyond the last move.
void CheckLimit(const char* type, const PointF& press, const PointF& move, const PointF& refused,
                const PointF& accepted) {
    Owned<CClickPathShape> owned(type);
    owned.Configure("rule", R"({"rule":[[100,100],[200,100],[200,200]]})", "EnableRBtnDelete");
    owned.shape->SetLimitRectangle({100, 100, 300, 300});
    owned.Press(press, Inside);
    owned.Send(RULECANVAS_MOUSE_MOVED, move);
    const int dragged = owned.shape->GetState();
    EXPECT_GT(dragged, Complete);
    owned.Send(RULECANVAS_MOUSE_LEFT_UP, refused);
    owned.shape->HandleRButtonEvent({RULECANVAS_MOUSE_RIGHT_DOWN, OwnersView, 0, 9, 9, 0, 0}, OnOutline);
    EXPECT_EQ(owned.shape->GetState(), dragged);
    owned.Send(RULECANVAS_MOUSE_LEFT_UP, accepted);
    EXPECT_EQ(owned.shape->GetState(), Complete);
}

TEST(OwnedPath, EndsADragInsideItsLimitRectangleOnly) {
    CheckLimit("Polygon", {200, 200}, {250, 250}, {301, 250}, {300, 250});
    CheckLimit("Polygon", {180, 120}, {280, 220}, {279, 219}, {281, 221});
    CheckLimit("BrokenLine", {200, 200}, {250, 250}, {99, 250}, {100, 250});
}

TEST(OwnedPath, TellsItsOwnerWhereTheRightButtonRests) {
    struct Owner {
        int heard = 0;
        void Hear(const PointF& at) { heard += at.x == 500 ? 1 : 0; }
    } owner;
    Owned<> line("BrokenLine");
    line.shape->Hooks().CursorHook = decltype(OwnerHooks::CursorHook)::Bind<&Owner::Hear>(&owner);
    line.Configure("rule", R"({"rule":[[100,100],[200,100],[200,200]]})");
    int level = Miss;
    line.shape->HitTestRButtonDown({RULECANVAS_MOUSE_RIGHT_DOWN, OwnersView, 0, 500, 9, 0, 0}, level);
    EXPECT_EQ(owner.heard, 1);
    EXPECT_LE(line.shape->GetClaim().left, 0) << "everywhere";
}

TEST(OwnedSpot, StaysSolidWhenItIsConfiguredAgain) {
    struct : Surface {
        int filled = 0;
        void PaintEllipse(const PointF&, const PointF&, float, const ColorF&, const ColorF&) override { ++filled; }
    } surface;
    Owned<> spot("SpotShape");
    ShapeLook look;
    PaintPass pass(spot.container, OwnersView, surface, GridRect, look);
    for (const char* word : {"", "solid", "outline", ""}) {
        ASSERT_TRUE(spot.Configure("rule", R"({"rule":[[1,1]]})", word));
        spot.shape->OnDraw(pass);
    }
    EXPECT_EQ(surface.filled, 3);
}

} // namespace
} // namespace rulecanvas
