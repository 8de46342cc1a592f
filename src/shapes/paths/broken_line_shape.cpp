#include "shapes/paths/broken_line_shape.h"

#include "geometry/hit_tests.h"
#include "shape/drawing.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"

namespace rulecanvas {
namespace {

const bool registered = CShapeFactory::GetInstance().Register("BrokenLine", &MakeShape<CBrokenLineShape>);

constexpr int BrokenLineType = 4;
constexpr size_t FewestWritten = 2;

} // namespace

CBrokenLineShape::CBrokenLineShape() {
    shapeType = BrokenLineType;
}

CVideoAnalyseShape* CBrokenLineShape::HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (!enableRBtnDelete || (state != Moving && state != Adjusting)) {
        return CClickPathShape::HitTestRButtonDown(event, hitLevel);
    }
    platform::LockGuard guard(lock);
    const int level = LevelOf(PositionOf(event), true);
    hitLevel = level == Outside ? hitLevel : level;
    return this;
}

bool CBrokenLineShape::IsOnOutline(const PointF& press) const {
    return OnPath(figure.points, press);
}

bool CBrokenLineShape::HandleRightPress(const PointF& press) {
    if (OwnersHooks() != nullptr) {
        OwnersHooks()->CursorHook(press);
    }
    return true;
}

/// An owner that follows the pointer hears of it everywhere.
Claim CBrokenLineShape::CompleteClaim() const {
    return OwnersHooks() != nullptr ? Claim::Everywhere() : CClickPathShape::CompleteClaim();
}

Outcome CBrokenLineShape::StartEditing(const PointerEvent& press, int hitLevel) {
    return style->canAdjust ? CClickPathShape::StartEditing(press, hitLevel) : Outcome{};
}

bool CBrokenLineShape::Follow(const PointerEvent& position) {
    return !style->canMove || FollowMouse(position.ClampedFrom(figure.anchorPoint), position.view);
}

Outcome CBrokenLineShape::MoveTo(const PointerEvent& position) {
    Follow(position);
    return {};
}

/// A release where the line may not be lets nothing go.
Outcome CBrokenLineShape::EndMove(const PointerEvent& release) {
    return Follow(release) ? Finish() : Outcome{};
}

Json::Value CBrokenLineShape::WriteGeometry(const Points& points, const ViewSize& view) const {
    return points.size() < FewestWritten ? Json::Value() : WritePoints(points, view);
}

void CBrokenLineShape::DrawRest(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.state != Drawing && !look.caption.empty()) {
        DrawShowName(look, surface);
    }
    if (look.handles) {
        DrawAdjustBoxes(look.Path(), surface, look.Colour());
    }
}

} // namespace rulecanvas
