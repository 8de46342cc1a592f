#include "shapes/lines/broken_line_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
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

CVideoAnalyseShape* CBrokenLineShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (state != Complete) {
        return CClickPathShape::HitTestLButtonDown(event, hitLevel);
    }
    hitLevel = OnPath(CopyPoints(), PositionOf(event)) ? OnOutline : Outside; // an open path has no inside to press
    return this;
}

CVideoAnalyseShape* CBrokenLineShape::HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (enableRBtnDelete && (state == Moving || state == Adjusting)) {
        const int level = LevelAt(PositionOf(event));
        hitLevel = level == Outside ? hitLevel : level;
        return this;
    }
    return CClickPathShape::HitTestRButtonDown(event, hitLevel);
}

bool CBrokenLineShape::IsOnOutline(const Points& path, const PointF& press) const {
    return OnPath(path, press);
}

bool CBrokenLineShape::HandleRightPress(const PointF& press) {
    CursorHook(press);
    return true;
}

void CBrokenLineShape::StartEditing(const PointF& press, int hitLevel) {
    if (canAdjust) {
        CClickPathShape::StartEditing(press, hitLevel);
    }
}

bool CBrokenLineShape::MoveTo(const PointF& position) {
    return !canMove || CClickPathShape::MoveTo(position);
}

bool CBrokenLineShape::EndMove(const PointF& release) {
    return MoveTo(ClampToView(anchorPoint, release));
}

bool CBrokenLineShape::IsPoint(const Json::Value& element) const {
    return element.isArray();
}

bool CBrokenLineShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [path, view] = CopyFitted();
    return path.size() >= FewestWritten && CopyLine(PointsText(name, path, view), buffer, size);
}

void CBrokenLineShape::DrawRest(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.state != Drawing && !look.caption.empty()) {
        DrawShowName(look, surface, look.Colour());
    }
    if (look.handles) {
        DrawAdjustBoxes(look.points, surface, look.Colour());
    }
}

} // namespace rulecanvas
