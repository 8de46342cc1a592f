// What a container does with a shape that is made of others. No type of this version is: here is one.

#include "rulecanvas/surface.hpp"
#include "shape/shape_factory.h"
#include "shapes/regions/rectangle_shape.h"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace rulecanvas::test {
namespace {

/// A rectangle with another one as its part, which the presses go to.
class Frame final : public CRectangleShape {
  public:
    std::shared_ptr<CRectangleShape> part = std::make_shared<CRectangleShape>();
    std::string heard;
    int partLevel = Inside;
    CVideoAnalyseShape* answering = part.get();
    int latestMode = -1;
    std::function<void()> onEvent = [] {};

    bool IsComposite() const override { return true; }
    CVideoAnalyseShape* FindSubShape(ShapeID id) override { return id == part->GetShapeId() ? part.get() : nullptr; }
    uint32_t AddSubShape(uint32_t first, uint32_t second, uint32_t third) override {
        return 100 * first + 10 * second + third;
    }
    void RemoveSubShape(ShapeID id) override { Hear("remove", id); }
    bool RestartDrawing() override {
        Hear("restart", GetShapeId());
        return false;
    }
    int SetShapeDirection(ShapeID id, int direction) override {
        Hear("direct", id);
        return CRectangleShape::SetShapeDirection(id, direction);
    }
    bool SelectShape(bool select, int mode) override {
        latestMode = mode;
        return select;
    }
    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& /*event*/, int& hitLevel) override {
        hitLevel = partLevel;
        return partLevel == Miss ? nullptr : answering;
    }
    bool ShowsHandles() const { return adjustBoxShown; }
    void HandleContainerEvent(const ContainerMouseEvent& event, int hitLevel) override {
        heard += std::to_string(event.code) + "@" + std::to_string(hitLevel) + " ";
        onEvent();
    }

  private:
    void Hear(const char* what, ShapeID id) {
        heard += what + std::string(id == part->GetShapeId() ? " part " : " whole ");
    }
};

std::shared_ptr<Frame> latest;
const bool registered =
    CShapeFactory::GetInstance().Register("Frame", []() -> ShapePtr { return latest = std::make_shared<Frame>(); });

struct Frames : GridScene {
    std::shared_ptr<Frame> first = AddFrame();
    std::shared_ptr<Frame> second = AddFrame();

    Frames() {
        if (second->GetShapeId() < first->GetShapeId()) {
            first.swap(second); // identities may be addresses
        }
    }

    std::shared_ptr<Frame> AddFrame() {
        Add("Frame", Corners);
        return std::exchange(latest, nullptr);
    }
};

TEST(Composite, IsReachedThroughItsPartByTheCallsThatSaySo) {
    Frames frames;
    Frame& frame = *frames.second;
    CRectangleShape& part = *frame.part;
    const ShapeID whole = frame.GetShapeId();
    const ShapeID inner = part.GetShapeId();
    EXPECT_EQ(frames.container.AddToShape(whole, 1, 2, 3), 123U);
    EXPECT_EQ(frames.container.AddToShape(inner, 1, 2, 3), 0U) << "a part takes no parts";
    EXPECT_EQ(frame.latestMode, 0) << "when it was made";
    EXPECT_FALSE(frames.container.SelectShape(whole, false)) << "its own answer";
    EXPECT_EQ(frame.latestMode, 1) << "by the host";
    EXPECT_TRUE(frames.container.SelectShape(inner, true));
    EXPECT_TRUE(part.IsSelected());
    EXPECT_EQ(frames.container.SetShapeDirection(inner, 4), 1);
    EXPECT_EQ(frames.container.SetShapeDirection(whole, 4), 0) << "told, but the answer is a parent's";
    EXPECT_FALSE(frames.container.RedrawShape(inner));
    frames.container.DeleteShape(inner);
    EXPECT_EQ(frame.heard, "direct part direct whole restart whole remove part ");
    EXPECT_EQ(frames.first->heard, "");
}

TEST(Composite, NamesItsPart) {
    Frames frames;
    struct : Surface {
        std::string texts;
        void DrawString(const PointF&, const TextStyle&, const char* text) override { texts += text; }
    } surface;
    CRectangleShape& part = *frames.second->part;
    part.SetContainer(&frames.container);
    part.SetViewId(0, GridRect);
    part.SetVideoAnalyseShapeData({"rule", Corners, "", GridRect});
    frames.container.SetShowName(part.GetShapeId(), "part");
    frames.container.SetShowName(part.GetShapeId() + 1000, "nobody");
    frames.container.OnDraw(0, surface);
    EXPECT_EQ(surface.texts, "part");
    part.Retire();
}

TEST(Composite, GivesAPressToItsPart) {
    Frames frames;
    const auto press = [&] {
        frames.Send(RULECANVAS_MOUSE_LEFT_DOWN, {2000, 2000});
        return frames.first->part->GetState();
    };
    CRectangleShape& part = *frames.first->part;
    part.SetContainer(&frames.container);
    part.SetVideoAnalyseShapeData({"rule", Corners, "", GridRect});
    part.SetSelectedState(false);
    frames.first->partLevel = Outside;
    frames.second->partLevel = Miss;
    press();
    EXPECT_FALSE(part.IsSelected());
    frames.first->partLevel = Inside;
    frames.second->partLevel = OnOutline;
    frames.second->part->EnableShape(false);
    EXPECT_EQ(press(), Moving) << "the disabled part ends the search and wins nothing";
    frames.first->answering = frames.first.get();
    frames.first->partLevel = Outside;
    frames.second->part->EnableShape(true);
    frames.first->SetAdjustBoxShow(true);
    press();
    EXPECT_FALSE(frames.first->ShowsHandles()) << "although its own deselection leaves them";
    EXPECT_EQ(frames.first->latestMode, 1) << "by a press";
}

TEST(Composite, IsOfferedMovesAndKeysUntilItEnds) {
    Frames frames;
    frames.Send(RULECANVAS_MOUSE_MOVED, {1, 1});
    frames.Send(RULECANVAS_MOUSE_MOVED_EVENT, {1, 1});
    frames.first->onEvent = [&] { frames.container.DeleteShape(frames.second->GetShapeId()); };
    frames.Send(RULECANVAS_MOUSE_KEY_DOWN, {1, 1});
    EXPECT_EQ(frames.first->heard, "3@0 11@0 ");
    EXPECT_EQ(frames.second->heard, "3@0 ") << "it ended before its turn";
}

} // namespace
} // namespace rulecanvas::test
