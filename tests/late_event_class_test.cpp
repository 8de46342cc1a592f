// Events that come to a figure while another call takes it away.

#include "rulecanvas/surface.hpp"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

void Paint(GridScene& scene) {
    Surface surface;
    scene.container.OnDraw(0, surface);
}

/// The points are gone, as when another thread deletes the shape between a walk's look at its list and its call.
void SendLate(GridScene& scene, const ShapePtr& shape) {
    const ContainerMouseEvent event{RULECANVAS_MOUSE_LEFT_DOWN, 0, 0, 1010, 1010, 0, 0};
    const PointerEvent late{event, GridRect};
    shape->ClearShape();
    shape->OnMouseListened(MouseListenerKind::MouseMoved, late);
    shape->ClearShape();
    shape->OnMouseListened(MouseListenerKind::ButtonUp, late);
    shape->ClearShape();
    int level = Miss;
    shape->HitTestLButtonDown(event, level);
    shape->HandleLButtonDownEvent(late, OnOutline);
    shape->ClearShape();
    Points dragged;
    for (const int point : {-1, 0, 8}) {
        EXPECT_FALSE(shape->BuildDragPoints(point, {1010, 1010}, dragged) && dragged.empty());
    }
    Paint(scene);
}

std::string DrawnAnew(GridScene& scene, const ShapePtr& shape) {
    shape->RestartDrawing();
    for (const PointF& place : {PointF{3000, 3000}, PointF{4000, 3000}, PointF{4000, 4000}}) {
        scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, place);
        scene.Send(RULECANVAS_MOUSE_MOVED, {place.x + 500, place.y + 600});
        Paint(scene); // which measures
        scene.Send(RULECANVAS_MOUSE_LEFT_UP, {place.x + 500, place.y + 600});
    }
    scene.Send(RULECANVAS_MOUSE_RIGHT_DOWN, {9, 9});
    char text[256] = "";
    scene.container.GetShapeConfig(shape->GetShapeId(), text, sizeof(text));
    return text;
}

TEST(LateEvents, FindAFigureWithoutPointsAndLeaveItWhole) {
    for (const Type& type : Types) {
        if (type.name == std::string("OvalShape")) {
            continue; // it cannot be drawn anew
        }
        GridScene untouched;
        untouched.Add(type.name);
        const std::string expected = DrawnAnew(untouched, untouched.OnlyShape());
        EXPECT_NE(expected, "") << type.name;
        for (const char* config : {"", type.config}) {
            for (const float press : {1000.0F, 1500.0F}) { // a point, and a line or an inside
                GridScene scene;
                scene.Add(type.name, config);
                scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, {press, press});
                SendLate(scene, scene.OnlyShape());
                EXPECT_EQ(DrawnAnew(scene, scene.OnlyShape()), expected) << type.name << config;
            }
        }
    }
}

TEST(LateEvents, FindAnOvalWithoutCorners) {
    GridScene scene;
    scene.Add("OvalShape", R"({"OvalShape":[[1000,1000],[3000,3000]]})");
    scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, {1000, 1000});
    const ShapePtr oval = scene.OnlyShape();
    SendLate(scene, oval);
    EXPECT_EQ(oval->GetState(), Complete);
}

void RULECANVAS_THISCALL Throw(void* /*target*/, ViewID /*view*/, ClientRect* /*out*/) {
    throw 1;
}

TEST(LateEvents, AReleaseThatIsLostEndsTheGesturesOfItsViewAlone) {
    GridScene scene;
    const auto start = [&](ViewID view, const char* type, const char* config) {
        const ShapeID id = scene.container.CreateMainShape(view, "", type, "rule", config, "");
        scene.container.OnMouseEvent({RULECANVAS_MOUSE_LEFT_DOWN, view, 0, 2000, 2000, 0, 0});
        return scene.container.DeepFind(id);
    };
    const ShapePtr moved = start(0, "Rect", Corners);
    const ShapePtr elsewhere = start(1, "Rect", Corners);
    const ShapePtr drawn = start(2, "LineShape", "");
    scene.container.SetClientRectDelegate(CDelegate{&scene, reinterpret_cast<void*>(&Throw)});
    for (const ViewID view : {0U, 2U}) {
        EXPECT_ANY_THROW(scene.container.OnMouseEvent({RULECANVAS_MOUSE_LEFT_UP, view, 0, 3000, 3000, 0, 0}));
    }
    EXPECT_EQ(moved->GetState(), Complete);
    EXPECT_EQ(moved->buttonUpTicket + moved->mouseMovedTicket, 0U) << "it listens no longer";
    EXPECT_EQ(elsewhere->GetState(), Moving);
    EXPECT_EQ(drawn->GetState(), Waiting);
    Points left{{1, 1}};
    drawn->GetShapePoints(left);
    EXPECT_EQ(left, Points{});
}

} // namespace
} // namespace rulecanvas::test
