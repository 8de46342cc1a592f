#include "shapes/paths/click_path_shape.h"

#include "shape/drawing.h"
#include "shape/point_json.h"

#include <utility>

namespace rulecanvas {

CVideoAnalyseShape* CClickPathShape::HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    const PointF press = PositionOf(event);
    if (state == Drawing) {
        if (HasEnoughPoints() && OfferFinish()) {
            hitLevel = Busy;
        }
    } else if (state == Complete && HandleRightPress(press) && enableRBtnDelete) {
        LockGuard guard(lock);
        return AnswerRightPress(press, hitLevel);
    }
    return this;
}

CVideoAnalyseShape* CClickPathShape::AnswerRightPress(const PointF& press, int& hitLevel) {
    const int level = LevelOf(press, true);
    hitLevel = level == Outside ? hitLevel : level;
    return this;
}

int CClickPathShape::LevelOf(const PointF& press, bool hasInside) const {
    if (IsOnOutline(press)) {
        return OnOutline;
    }
    return hasInside && InPolygon(figure.points, press) ? Inside : Outside;
}

void CClickPathShape::HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) {
    if (IsOutsideLimit(PositionOf(event)) && (state == Moving || state == Adjusting)) {
        return;
    }
    FinishByRightButton(hitLevel);
    DeleteByRightButton(hitLevel);
}

Outcome CClickPathShape::StartDrawing(const PointerEvent& press) {
    figure.points.assign(1, press.position);
    figure.anchorPoint = press.position;
    figure.lastPoint = press.position;
    return Begin(Drawing);
}

Outcome CClickPathShape::ContinueDrawing(const PointerEvent& press) {
    constexpr int minimumSpacing = 4;
    Points& path = figure.points;
    if (path.empty() || !AcceptsPoint(press.position, press.view) || press.position == path.back()) {
        return {};
    }
    const PointF last = path.back();
    const bool isLast = static_cast<int>(path.size()) + 1 == maxPtNum;
    path.push_back(press.position);
    if (!AcceptsLastPoint(isLast) || CloserThan(minimumSpacing, last, press.position) || !IsConvexEnough()) {
        path.pop_back();
        return {};
    }
    figure.anchorPoint = press.position;
    return isLast ? Finish() : Outcome{};
}

bool CClickPathShape::DragPoint(int index, const PointF& to, const ClientRect& /*view*/) {
    const auto vertex = static_cast<size_t>(index);
    if (index < 0 || vertex >= figure.points.size()) {
        return false;
    }
    const PointF before = std::exchange(figure.points[vertex], to);
    if (!AcceptsVertex(vertex)) {
        figure.points[vertex] = before;
        return false;
    }
    return true;
}

/// What a host has stored is taken as it is: few points, crossing edges and concave corners are tested only where the
/// user makes them.
Refused CClickPathShape::Load(Loading& loading) {
    const Json::Value& elements = loading.geometry;
    if (int64_t{elements.size()} > maxPtNum) {
        return loading.Refuse("at most " + std::to_string(maxPtNum) + " points");
    }
    figure.points.reserve(elements.size());
    for (Json::ArrayIndex i = 0; i < elements.size(); ++i) {
        const Json::Value& element = elements[i];
        if (IsPoint(element)) {
            figure.points.push_back(ReadRealPoint(element, figure.fitted));
        }
    }
    Enter(figure.points.empty() ? Waiting : Complete);
    return std::nullopt;
}

void CClickPathShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& path = look.Path();
    if (path.empty()) {
        return;
    }
    DrawOpenPath(path, look.Thickness(), look.Colour(), pass.surface);
    if (look.state == Drawing) {
        const PointF end = ClampRelative(path.back(), look.figure.lastPoint, pass.AskPaintedRect());
        DrawSegment(path.back(), end, look.Thickness(), look.Colour(), pass.surface);
    }
    DrawRest(look, pass.surface);
}

} // namespace rulecanvas
