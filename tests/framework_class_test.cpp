// What no export reaches: geometry and the operations of shapes that are there for composite owners.

#include "shape/geometry.h"
#include "shape/segments.h"
#include "shape/shape_factory.h"
#include "shapes/regions/rectangle_shape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace rulecanvas {
namespace {

TEST(Geometry, TruncatesTowardZeroAndSaturates) {
    for (const auto& [value, expected] : std::initializer_list<std::pair<double, int>>{
             {1.9, 1}, {-1.9, -1}, {1e20, INT32_MAX}, {-1e20, INT32_MIN}, {std::nan(""), 0}}) {
        EXPECT_EQ(TruncateToInt(value), expected);
    }
    EXPECT_EQ(Span(INT32_MIN, INT32_MAX), INT32_MAX);
}

TEST(Geometry, HasTheTolerancesOfTheEditor) {
    EXPECT_EQ(VertexIndex({{50, 50}, {10, 10}, {11, 11}}, {14.9F, 5.1F}), 1);
    EXPECT_EQ(VertexIndex({{10, 10}}, {15, 10}), -1);
    struct Case {
        PointF a, b, near, beyond;
    };
    for (const Case& c :
         {Case{{10, 0}, {10, 50}, {13, 20}, {13.5F, 20}}, Case{{10, 0}, {10, 50}, {10, 53}, {10, 53.5F}},
          Case{{0, 10}, {50, 10}, {20, 13}, {20, 13.5F}}, Case{{0, 0}, {50, 50}, {24, 20}, {24.5F, 20}},
          Case{{0, 0}, {25, 50}, {14, 20}, {14.5F, 20}}, Case{{0, 0}, {50, 50}, {-3, -3}, {-5, -5}},
          Case{{7, 7}, {7, 7}, {10, 10}, {10, 10.5F}}}) {
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
    EXPECT_EQ(SpanRectangle({5, 5}, {5, 5}, view).firstPoint, Corner::TopLeft);
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
}

TEST(Factory, KeepsTheFirstRegistrationOfAName) {
    EXPECT_FALSE(CShapeFactory::GetInstance().Register("Rect", nullptr));
    EXPECT_NE(CShapeFactory::GetInstance().CreateShape("Rect"), nullptr);
}

/// A container of one view that accepts every point and counts notifications.
class OneView final : public IShapeContainer {
  public:
    ~OneView() = default;
    ClientRect GetClientRect(ViewID /*view*/) override { return {0, 0, 500, 500}; }
    bool IsInClientArea(ViewID /*view*/, const PointF& point) override { return InRectangle({0, 0, 500, 500}, point); }
    bool RequestCapture(bool /*take*/) override { return true; }
    void RegisterWinMouseEvent(MouseListenerKind kind, const ShapeOwner& /*owner*/,
                               const MouseListener& listener) override {
        listeners[kind] = listener;
    }
    void unRegisterWinMouseEvent(MouseListenerKind /*kind*/, const MouseListener& /*listener*/) override {}
    void RegisterDrawEvent(const ShapeOwner& /*owner*/, const DrawListener& /*listener*/) override {}
    void unRegisterDrawEvent(const DrawListener& /*listener*/) override {}
    void SendHostHint(uint32_t /*value*/) override {}
    void Notify(const std::string& /*event*/) override { ++notifications; }
    ViewSize GetPixelCount() override { return {}; }

    int notifications = 0;
    std::map<MouseListenerKind, MouseListener> listeners;
};

TEST(RectangleClass, ServesACompositeOwner) {
    OneView view;
    CRectangleShape shape;
    shape.SetContainer(&view);
    shape.PlaceAt({100, 100}, 41, 20);
    EXPECT_EQ(shape.GetState(), Complete);
    Points corners{{1, 1}};
    shape.GetShapePoints(corners);
    EXPECT_EQ(corners, (Points{{1, 1}, {80, 90}, {120, 90}, {120, 110}, {80, 110}})) << "appended";
    shape.PlaceAt({100, 100}, 8, 8);
    shape.SetShapePoints({{0, 0}});
    Points same;
    shape.GetShapePoints(same);
    EXPECT_EQ(same, Points(corners.begin() + 1, corners.end())) << "neither too small a place nor too short a list";
    shape.SelectNotifyHook(1, 0);
    EXPECT_EQ(view.notifications, 0) << "only 1, 1 is reported";
    PointF press{};
    EXPECT_TRUE(shape.GetPressPoint(press));
    EXPECT_EQ(press, (PointF{96, 96})) << "the anchor of the latest placing";
    shape.SetShapeDirection(0, 4);
    EXPECT_EQ(shape.GetShapeDirection(), 4);
}

TEST(RectangleClass, MustCoverItsCropLimit) {
    OneView view;
    CRectangleShape shape;
    shape.SetContainer(&view);
    shape.PlaceAt({100, 100}, 100, 100);
    shape.SetCropLimit({60, 60, 140, 140});
    struct Case {
        PointF press, refused, accepted;
        ShapeState during;
    };
    for (const Case& c :
         {Case{{150, 150}, {139, 150}, {145, 150}, Adjusting}, Case{{100, 100}, {111, 100}, {105, 95}, Moving}}) {
        const auto event = [](const PointF& p) { return ContainerMouseEvent{0, 0, 0, p.x, p.y, 0, 0}; };
        shape.HandleLButtonDownEvent(event(c.press), Inside);
        EXPECT_FALSE(view.listeners[MouseListenerKind::ButtonUp](event(c.refused)));
        EXPECT_EQ(shape.GetState(), c.during) << "the drag goes on";
        EXPECT_TRUE(view.listeners[MouseListenerKind::ButtonUp](event(c.accepted)));
        EXPECT_EQ(shape.GetState(), Complete);
    }
}

} // namespace
} // namespace rulecanvas
