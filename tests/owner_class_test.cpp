// What a figure that owns another one may do with it, and no host can.

#include "rulecanvas/surface.hpp"
#include "shape/paint_pass.h"
#include "shape/shape_factory.h"
#include "shapes/lines/line_shape.h"
#include "shapes/paths/click_path_shape.h"
#include "shapes/regions/rectangle_shape.h"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

#include <utility>

namespace rulecanvas {
namespace {

using test::GridRect;

void RULECANVAS_THISCALL CountNotification(void* target, const char* /*text*/, Bool32 /*flag*/) {
    ++*static_cast<int*>(target);
}

/// A shape in a view, but not among the shapes of the view's container.
template <class Shape = CVideoAnalyseShape>
struct Owned : test::GridScene {
    std::shared_ptr<Shape> shape;
    int notifications = 0;

    explicit Owned(const char* type)
        : Owned(std::static_pointer_cast<Shape>(CShapeFactory::GetInstance().CreateShape(type))) {}
    explicit Owned(std::shared_ptr<Shape> made) : shape(std::move(made)) {
        container.SetNotifyDelegate(CDelegate{&notifications, reinterpret_cast<void*>(&CountNotification)});
        shape->SetContainer(&container);
        shape->SetViewId(0, GridRect);
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
        const ContainerMouseEvent event{RULECANVAS_MOUSE_LEFT_DOWN, 0, 0, at.x, at.y, 0, 0};
        shape->HandleLButtonDownEvent(PointerEvent{event, GridRect}, level);
    }

    int StateAfterRightPress(int level) {
        shape->HandleRButtonEvent({RULECANVAS_MOUSE_RIGHT_DOWN, 0, 0, 9, 9, 0, 0}, level);
        return shape->GetState();
    }

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
    copy.shape->SetShapePoints({{1, 1}}); // not a line's number of points
    EXPECT_TRUE(copy.shape->MoveShape(5, 7));
    EXPECT_EQ(copy.PointsNow(), (Points{{10, 17}, {10, 97}})) << "its own points, up and down only";
    Owned<CLineShape> unnamed("LineShape");
    Owned<CLineShape> ofUnnamed(std::make_shared<CLineShape>(*unnamed.shape));
    EXPECT_EQ(ofUnnamed.StateAfterStroke({10, 10}, {50, 90}), Waiting) << "no event name either, so it is limited";
}

TEST(OwnedLine, WithoutAnEventNameIsDrawnInsideItsLimitAreaOnly) {
    Owned<> area("XLineShape");
    area.Configure("u", R"({"u":[[30,90],[0,90],[0,0],[90,0],[90,90],[60,90],[60,30],[30,30]]})");
    Owned<CLineShape> limited("LineShape");
    EXPECT_FALSE(limited.shape->SetLimitArea(nullptr));
    EXPECT_TRUE(limited.shape->SetLimitArea(Owned<>("XLineShape").shape.get()));
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {80, 10}), Waiting) << "an empty area, nothing inside";
    EXPECT_TRUE(limited.shape->SetLimitArea(area.shape.get()));
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {45, 60}), Waiting) << "ends outside";
    EXPECT_EQ(limited.StateAfterStroke({45, 80}, {10, 80}), Waiting) << "comes in over the closing edge";
    EXPECT_EQ(limited.StateAfterStroke({10, 10}, {80, 10}), Complete);
}

TEST(OwnedLine, IsClippedToAPolygon) {
    const char* const square = R"({"area":[[100,100],[200,100],[200,200],[100,200]]})";
    const auto clipped = [&](const Points& points, const char* key, int mode, const char* text) {
        Owned<CLineShape> owned("LineShape");
        owned.shape->SetShapePoints(points);
        owned.shape->SetViewId(0, {}); // the view's size is learnt when it is needed
        const bool done = owned.shape->ClipToPolygon(text, key, mode);
        EXPECT_EQ(done, owned.PointsNow() != points);
        return owned.PointsNow();
    };
    const Points inside{{120, 150}, {130, 150}};
    EXPECT_EQ(clipped(inside, "area", 0, square), (Points{{200, 150}, {100, 150}}));
    EXPECT_EQ(clipped(inside, "area", 1, square), inside);
    for (const char* key : {"other", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(clipped(inside, key, 0, square), inside);
    }
    for (const char* text : {"", "{", R"({"area":[[100,100],[200,100],[200,200],[100]]})"}) {
        EXPECT_EQ(clipped(inside, "area", 0, text), inside) << text;
    }
    EXPECT_EQ(clipped({}, "area", 0, square), Points{}) << "not drawn yet";
    EXPECT_EQ(clipped({{0, 0}, {50, 50}}, "area", 0, square), (Points{{100, 100}, {200, 200}})) << "corner to corner";
    const Points touching{{0, 200}, {200, 0}};
    EXPECT_EQ(clipped(touching, "area", 0, square), touching) << "one corner is not enough";
}

/// An owner that allows a path up to some number of points, and none that begins too far to the right.
struct Judge {
    size_t longest = 0;
    bool judgedComplete = false;
    bool Decide(const Points& path, bool complete) {
        judgedComplete = complete;
        return path.size() <= longest;
    }
    bool Check(const Points& path) { return path[0].x < 50; }

    void SitOver(OwnerHooks& hooks) {
        hooks.ValidationHook = decltype(hooks.ValidationHook)::Bind<&Judge::Decide>(this);
    }
};

TEST(OwnedArrow, AsksItsOwnerBeforeItChanges) {
    Judge owner;
    Owned<> arrow("ArrowLineShape");
    owner.SitOver(arrow.shape->Hooks());
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Waiting) << "the first point is refused";
    EXPECT_FALSE(owner.judgedComplete);
    EXPECT_EQ(arrow.PointsNow(), Points{});
    owner.longest = 1;
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Waiting) << "the second one: to be drawn again";
    owner.longest = 2;
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Complete);
    EXPECT_TRUE(owner.judgedComplete);
    const Points drawn = arrow.PointsNow();
    Points dragged;
    EXPECT_TRUE(arrow.shape->BuildDragPoints(0, {60, 20}, dragged));
    OwnerHooks& hooks = arrow.shape->Hooks();
    hooks.GeometryCheckHook = decltype(hooks.GeometryCheckHook)::Bind<&Judge::Check>(&owner);
    EXPECT_TRUE(arrow.shape->BuildDragPoints(0, {20, 20}, dragged));
    EXPECT_EQ(dragged, (Points{{20, 20}, {90, 10}}));
    EXPECT_FALSE(arrow.shape->BuildDragPoints(0, {60, 20}, dragged)) << "the geometry is checked, too";
    EXPECT_FALSE(arrow.shape->BuildDragPoints(0, {20, -20}, dragged)) << "and it stays in the view";
    EXPECT_FALSE(arrow.shape->MoveShape(50, 0));
    owner.longest = 0;
    EXPECT_FALSE(arrow.shape->BuildDragPoints(0, {20, 20}, dragged));
    EXPECT_FALSE(arrow.shape->MoveShape(1, 1));
    EXPECT_EQ(arrow.PointsNow(), drawn);
    EXPECT_FALSE(owner.judgedComplete);
}

TEST(OwnedArrow, IsFinishedByTheRightButtonWithItsOwnersConsent) {
    Judge owner{2};
    Owned<> arrow("ArrowLineShape");
    arrow.Configure("rule", "", R"({"XArrowLine":true})");
    owner.SitOver(arrow.shape->Hooks());
    EXPECT_EQ(arrow.StateAfterStroke({10, 10}, {90, 10}), Drawing);
    EXPECT_EQ(arrow.StateAfterRightPress(OnOutline), Drawing);
    owner.longest = 1;
    EXPECT_EQ(arrow.StateAfterRightPress(Busy), Drawing);
    owner.longest = 2;
    EXPECT_EQ(arrow.StateAfterRightPress(Busy), Complete);
    EXPECT_TRUE(std::exchange(owner.judgedComplete, false));
    arrow.Press({10, 10}, OnOutline);
    arrow.Send(RULECANVAS_MOUSE_LEFT_UP, {10, 10});
    EXPECT_TRUE(owner.judgedComplete) << "and after a drag";
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
    rectangle.SetShapePoints({{1, 2}, {3, 2}, {3, 4}, {1, 4}});
    EXPECT_EQ(owned.PointsNow()[2], (PointF{3, 4}));
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
         {Case{{150, 150}, {139, 150}, {140, 150}, Adjusting}, Case{{150, 150}, {150, 139}, {150, 140}, Adjusting},
          Case{{50, 50}, {50, 61}, {50, 60}, Adjusting}, Case{{50, 50}, {61, 50}, {60, 50}, Adjusting},
          Case{{100, 100}, {111, 100}, {110, 90}, Moving}}) {
        owned.Press(c.press, Inside);
        owned.Send(RULECANVAS_MOUSE_LEFT_UP, c.refused);
        EXPECT_EQ(owned.shape->GetState(), c.during) << "the drag goes on";
        owned.Send(RULECANVAS_MOUSE_LEFT_UP, c.accepted);
        EXPECT_EQ(owned.shape->GetState(), Complete);
    }
    EXPECT_EQ(owned.StateAfterStroke({50, 50}, {139, 150}), Drawing);
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
    EXPECT_EQ(owned.StateAfterRightPress(OnOutline), dragged);
    owned.Send(RULECANVAS_MOUSE_LEFT_UP, accepted);
    EXPECT_EQ(owned.shape->GetState(), Complete);
    EXPECT_EQ(owned.StateAfterRightPress(OnOutline), Deleted) << "at rest the limit is none";
}

TEST(OwnedPath, EndsADragInsideItsLimitRectangleOnly) {
    CheckLimit("Polygon", {200, 200}, {250, 250}, {301, 250}, {300, 250});
    CheckLimit("Polygon", {180, 120}, {280, 220}, {279, 219}, {281, 221});
    CheckLimit("BrokenLine", {200, 200}, {250, 250}, {99, 250}, {100, 250});
}

TEST(OwnedPath, GrowsWithItsOwnersConsent) {
    Judge owner{2};
    Owned<> polygon("Polygon");
    polygon.Configure("rule", "");
    owner.SitOver(polygon.shape->Hooks());
    for (const PointF& corner : {PointF{10, 10}, PointF{90, 10}, PointF{90, 90}}) {
        polygon.Press(corner, Busy);
    }
    EXPECT_EQ(polygon.PointsNow(), (Points{{10, 10}, {90, 10}}));
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
    line.shape->HitTestRButtonDown({RULECANVAS_MOUSE_RIGHT_DOWN, 0, 0, 500, 9, 0, 0}, level);
    EXPECT_EQ(owner.heard, 1);
    EXPECT_LE(line.shape->GetClaim().left, 0) << "everywhere";
}

struct CountingSurface : Surface {
    int discs = 0;
    int outlines = 0;
    void PaintEllipse(const PointF&, const PointF&, float, const ColorF&, const ColorF&) override { ++discs; }
    void StrokeRectangle(const PointF&, const PointF&, float, const ColorF&, int32_t) override { ++outlines; }
};

CountingSurface Painted(Owned<>& owned) {
    CountingSurface surface;
    ShapeLook look;
    PaintPass pass(owned.container, 0, surface, GridRect, look);
    owned.shape->OnDraw(pass);
    return surface;
}

TEST(OwnedShape, RemembersItsModeWordsWhenItIsConfiguredAgain) {
    struct Case {
        const char* type;
        const char* word;
        bool (*remembers)(Owned<>& owned);
    };
    const auto goesByTheRightButton = [](Owned<>& owned) { return owned.StateAfterRightPress(OnOutline) == Deleted; };
    const auto staysConvex = [](Owned<>& owned) {
        Points dragged;
        owned.shape->SetShapePoints({{100, 100}, {200, 100}, {200, 200}, {100, 200}});
        return !owned.shape->BuildDragPoints(0, {180, 160}, dragged);
    };
    const auto isUprightBound = [](Owned<>& owned) {
        return owned.shape->MoveShape(5, 7) && owned.PointsNow()[0] == PointF{100, 107};
    };
    for (const Case& c :
         {Case{"SpotShape", "solid", [](Owned<>& owned) { return Painted(owned).discs == 1; }},
          Case{"Rect", "TextOnly", [](Owned<>& owned) { return Painted(owned).outlines == 0; }},
          Case{"Rect", "EnableRBtnDelete", goesByTheRightButton},
          Case{"Polygon", "EnableRBtnDelete", goesByTheRightButton}, Case{"Polygon", "Convex", staysConvex},
          Case{"LineShape", "Horizon", isUprightBound}, Case{"LineShape", "MovedHLine", isUprightBound}}) {
        Owned<> owned(c.type);
        for (const char* option : {"", c.word, "another", ""}) {
            ASSERT_TRUE(owned.Configure("rule", R"({"rule":[[100,100],[200,200]]})", option));
        }
        EXPECT_TRUE(c.remembers(owned)) << c.type << " " << c.word;
        owned.Configure("rule", "");
        EXPECT_EQ(owned.PointsNow(), Points{}) << c.type << " forgets the figure";
    }
}

TEST(OwnedShape, DragsNoPointThatItHasNot) {
    for (const auto& [type, pointCount] : {std::make_pair("OvalShape", 8), {"LineShape", 2}, {"Polygon", 3}}) {
        Owned<> owned(type);
        ASSERT_TRUE(owned.Configure("rule", test::ConfigOf(type)));
        Points dragged;
        for (const int index : {-1, pointCount, 100}) {
            EXPECT_FALSE(owned.shape->BuildDragPoints(index, {1500, 1500}, dragged)) << type << " " << index;
            EXPECT_EQ(dragged, owned.PointsNow());
        }
    }
    Owned<> spot("SpotShape");
    spot.Configure("rule", test::Place);
    Points dragged;
    EXPECT_TRUE(spot.shape->BuildDragPoints(-1, {1500, 1500}, dragged)) << "which has but one";
}

TEST(OwnedShape, HasAStyleForTypesToComeToo) {
    ShapeStyle style;
    EXPECT_FALSE(style.isFill);
    ReadStyle(R"({"IsFill":true,"ShapeColor":[{"ColorName":"FillColor","R":1,"G":2,"B":3},
                                             {"ColorName":"FontColor","R":4,"G":5,"B":6}]})",
              style);
    ShapeStyle expected;
    expected.isFill = true;
    expected.fillColor = OpaqueColour(1, 2, 3);
    expected.textStyle.fontColor = OpaqueColour(4, 5, 6);
    EXPECT_TRUE(style == expected);
    EXPECT_NO_THROW(ReadStyle(R"({"ShapeColor":5})", style));
    EXPECT_EQ(Shared(style), Shared(expected)) << "one for all that look alike";
}

TEST(OwnedShape, WithoutAContainerTellsNobody) {
    const ShapePtr rectangle = CShapeFactory::GetInstance().CreateShape("Rect");
    EXPECT_FALSE(rectangle->SetVideoAnalyseShapeData({"rule", R"({"rule":[[1,1],[90,90]]})", "", GridRect}));
    EXPECT_EQ(rectangle->GetState(), Complete);
    Points dragged;
    EXPECT_FALSE(rectangle->BuildDragPoints(0, {20, 20}, dragged)) << "there is no view to stay in";
    const ShapePtr line = CShapeFactory::GetInstance().CreateShape("LineShape");
    EXPECT_FALSE(line->SetVideoAnalyseShapeData({"rule", R"({"rule":[[1,1],[90,90]]})", "", {}}));
    char text[64];
    EXPECT_TRUE(line->GetVideoAnalyseShapeConfigData(text, sizeof(text))) << "asks for the view, and finds none";
    line->Retire();
    rectangle->Retire();
}

} // namespace
} // namespace rulecanvas
