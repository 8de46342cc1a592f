// The limits that a figure sets for the polygons and broken lines it owns; no host can.

#include "container/container.h"
#include "shape/click_path_shape.h"

#include <gtest/gtest.h>

namespace rulecanvas {
namespace {

void RULECANVAS_THISCALL ReportClientRect(void* /*target*/, ViewID /*view*/, ClientRect* out) {
    *out = ClientRect{0, 0, 8191, 8191}; // pixels and grid are the same number
}

TEST(PathClass, ADragEndsInsideTheLimitRectangleOnly) {
    struct Case {
        const char* type;
        PointF press, move, refused, accepted;
    };
    // A polygon's move is judged by its vertices, shifted back by what the release lies beyond the last move.
    for (const Case& c : {Case{"Polygon", {200, 200}, {250, 250}, {301, 250}, {300, 250}},
                          Case{"Polygon", {180, 120}, {280, 220}, {279, 219}, {281, 221}},
                          Case{"BrokenLine", {200, 200}, {250, 250}, {99, 250}, {100, 250}}}) {
        const auto container = CVideoAnalyseContainer::Create(nullptr);
        container->SetClientRectDelegate(CDelegate{container.get(), reinterpret_cast<void*>(&ReportClientRect)});
        container->Enable(true);
        container->CreateMainShape(1, "", c.type, "rule", R"({"rule":[[100,100],[200,100],[200,200]]})",
                                   "EnableRBtnDelete");
        const ShapePtr shape = *container->ShapesInOrder().begin();
        static_cast<CClickPathShape&>(*shape).SetLimitRectangle({100, 100, 300, 300});
        const auto send = [&](uint32_t code, const PointF& at) {
            container->OnMouseEvent({code, 1, 0, at.x, at.y, 0, 0});
        };
        send(RULECANVAS_MOUSE_LEFT_DOWN, c.press);
        send(RULECANVAS_MOUSE_MOVED, c.move);
        const int dragged = shape->GetState();
        send(RULECANVAS_MOUSE_LEFT_UP, c.refused);
        shape->HandleRButtonEvent({RULECANVAS_MOUSE_RIGHT_DOWN, 1, 0, 9, 9, 0, 0}, OnOutline);
        EXPECT_EQ(shape->GetState(), dragged);
        send(RULECANVAS_MOUSE_LEFT_UP, c.accepted);
        EXPECT_EQ(shape->GetState(), Complete);
        container->Close();
    }
}

} // namespace
} // namespace rulecanvas
