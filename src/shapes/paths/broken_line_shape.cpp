#include "shape/drawing.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shapes/paths/click_path_shape.h"

namespace rulecanvas {
namespace {

/// An open path, drawn by clicking its points. It is drawn open, also when its mode word keeps it convex.
class CBrokenLineShape final : public CClickPathShape {
  public:
    CBrokenLineShape() { shapeType = BrokenLineType; }

    /// A line that may be deleted may be so in the middle of a drag, too.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override {
        if (!enableRBtnDelete || (state != Moving && state != Adjusting)) {
            return CClickPathShape::HitTestRButtonDown(event, hitLevel);
        }
        LockGuard guard(lock);
        return AnswerRightPress(PositionOf(event), hitLevel);
    }

  private:
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override {
        return style->canAdjust ? CClickPathShape::StartEditing(press, hitLevel) : Outcome{};
    }
    Outcome MoveTo(const PointerEvent& position) override {
        Follow(position);
        return {};
    }

    /// A release where the line may not be lets nothing go.
    Outcome EndMove(const PointerEvent& release) override { return Follow(release) ? Finish() : Outcome{}; }
    bool IsOnOutline(const PointF& press) const override { return OnPath(figure.points, press); }
    bool HasInside() const override { return false; }
    bool HandleRightPress(const PointF& press) override {
        if (OwnersHooks() != nullptr) {
            OwnersHooks()->CursorHook(press);
        }
        return true;
    }

    bool IsPoint(const Json::Value& element) const override { return element.isArray(); }
    Json::Value WriteGeometry() const override {
        constexpr size_t fewest = 2;
        return figure.points.size() < fewest ? Json::Value() : WritePoints(figure.points, figure.fitted);
    }
    CopyRule RuleOfCopying() const override { return CopyRule::Line; }
    /// An owner that follows the pointer hears of it everywhere.
    Claim CompleteClaim() const override {
        return OwnersHooks() != nullptr ? Claim::Everywhere() : CClickPathShape::CompleteClaim();
    }
    void DrawRest(const ShapeLook& look, IContainerGraphics& surface) override;

    bool Follow(const PointerEvent& position) { return !style->canMove || FollowMouse(AimOf(position), position.view); }
};

const bool registered = Register<CBrokenLineShape>("BrokenLine");

} // namespace

void CBrokenLineShape::DrawRest(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.state != Drawing && !look.caption.empty()) {
        DrawShowName(look, surface);
    }
    if (look.handles) {
        DrawAdjustBoxes(look.Path(), surface, look.Colour());
    }
}

} // namespace rulecanvas
