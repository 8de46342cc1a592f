#include "shape/click_path_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/point_json.h"
#include "shape/segments.h"
#include "shape/text.h"

#include <algorithm>

namespace rulecanvas {
namespace {

constexpr int MostPoints = 20;
constexpr int FewestPoints = 3;
constexpr int MinimumSpacing = 4;
constexpr PointF NoPoint{-1.0F, -1.0F};

bool PutPoint(Points& path, int index, const PointF& position) {
    if (index < 0 || index >= static_cast<int>(path.size())) {
        return false;
    }
    path[static_cast<size_t>(index)] = position;
    return true;
}

} // namespace

CClickPathShape::CClickPathShape() {
    maxPtNum = MostPoints;
    minPtNum = FewestPoints;
    lastPoint = NoPoint;
    PointAcceptanceHook = decltype(PointAcceptanceHook)::Bind<&CClickPathShape::AcceptsNext>(this);
    VertexMoveHook = decltype(VertexMoveHook)::Bind<&CClickPathShape::AcceptsVertexMove>(this);
}

CVideoAnalyseShape* CClickPathShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (state == Complete) {
        hitLevel = LevelAt(PositionOf(event));
    } else if (state != Deleted) {
        hitLevel = Busy;
    }
    return this;
}

CVideoAnalyseShape* CClickPathShape::HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    const PointF press = PositionOf(event);
    if (state == Drawing) {
        if (HasEnoughPoints() && OfferFinish()) {
            hitLevel = Busy;
        }
    } else if (state == Complete && HandleRightPress(press) && enableRBtnDelete) {
        const int level = LevelAt(press);
        hitLevel = level == Outside ? hitLevel : level;
    }
    return this;
}

int CClickPathShape::LevelAt(const PointF& press) const {
    const Points path = CopyPoints();
    if (IsOnOutline(path, press)) {
        return OnOutline;
    }
    return InPolygon(path, press) ? Inside : Outside;
}

void CClickPathShape::HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) {
    if (IsOutsideLimit(PositionOf(event)) && (state == Moving || state == Adjusting)) {
        return;
    }
    FinishByRightButton(hitLevel);
    DeleteByRightButton(hitLevel);
}

bool CClickPathShape::HasEnoughPoints() const {
    return static_cast<int>(PointCount()) >= minPtNum;
}

bool CClickPathShape::OfferFinish() {
    return true;
}

void CClickPathShape::StartDrawing(const PointF& press) {
    if (AcceptsPoint(press) && state == Waiting) {
        ReplacePoints({press});
        SetAnchorPoint(press);
        SetLastPoint(press);
        BeginGesture(Drawing);
    }
}

void CClickPathShape::ContinueDrawing(const PointF& press) {
    bool isLast = false;
    const bool added = EditPoints([&](Points& path) {
        isLast = static_cast<int>(path.size()) + 1 == maxPtNum;
        if (path.empty() || !AcceptsPoint(press) || press == path.back() ||
            !PointAcceptanceHook(path.back(), press, isLast)) {
            return false;
        }
        path.push_back(press);
        return true;
    });
    if (!added) {
        return;
    }
    SetAnchorPoint(press);
    if (isLast) {
        FinishGesture();
    }
}

bool CClickPathShape::AcceptsNext(const PointF& last, const PointF& next, bool isLast) {
    Points extended = CopyPoints();
    extended.push_back(next);
    return AcceptsPath(extended, isLast) && !CloserThan(MinimumSpacing, last, next) && IsConvexEnough(extended);
}

bool CClickPathShape::AcceptsPath(const Points& /*extended*/, bool /*isLast*/) {
    return true;
}

void CClickPathShape::StartEditing(const PointF& press, int /*hitLevel*/) {
    const Points path = CopyPoints();
    grabbedIndex = VertexIndex(path, press);
    if (grabbedIndex >= 0) {
        SetAnchorPoint(path.at(static_cast<size_t>(grabbedIndex)));
        Grab(Adjusting);
    } else if (InPolygon(path, press)) {
        SetAnchorPoint(press);
        Grab(Moving);
    }
}

bool CClickPathShape::OnMouseMove(const PointF& position) {
    const PointF clamped = ClampToView(anchorPoint, position);
    switch (state) {
    case Drawing:
        SetLastPoint(position);
        break;
    case Moving:
        MoveTo(clamped);
        break;
    case Adjusting:
        EditPoints([&](Points& path) { return BuildDragPoints(grabbedIndex, clamped, path); });
        break;
    default:
        break;
    }
    return true;
}

bool CClickPathShape::OnButtonUp(const PointF& position, const ContainerMouseEvent& /*event*/) {
    switch (state) {
    case Drawing:
        Capture(true); // a host may have let go of the mouse with the button
        return true;
    case Moving:
        return EndMove(position) && state == Moving && FinishGesture();
    case Adjusting:
        return !IsOutsideLimit(position) && FinishGesture();
    default:
        return true;
    }
}

bool CClickPathShape::MoveTo(const PointF& position) {
    return FollowMouse(position);
}

bool CClickPathShape::BuildDragPoints(int index, const PointF& current, Points& out) {
    out = CopyPoints();
    return VertexMoveHook(index, current) && PutPoint(out, index, current);
}

bool CClickPathShape::AcceptsVertexMove(int index, const PointF& position) {
    Points moved = CopyPoints();
    return PutPoint(moved, index, position) && AcceptsVertex(moved, static_cast<size_t>(index));
}

bool CClickPathShape::AcceptsVertex(const Points& path, size_t /*vertex*/) const {
    return IsConvexEnough(path);
}

void CClickPathShape::SetShapePoints(Points newPoints) {
    ReplacePoints(std::move(newPoints));
}

bool CClickPathShape::IsConvexEnough(const Points& path) const {
    return !convex || IsConvex(path);
}

bool CClickPathShape::IsOutsideLimit(const PointF& point) const {
    return m_recWnd.left >= 0 && !InRectangle(m_recWnd, point);
}

bool CClickPathShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) {
    ParseStyleConfig(styleOrMode);
    BeginConfiguration(shapeName);
    convex = convex || IsWord(styleOrMode, "Convex");
    enableRBtnDelete = enableRBtnDelete || IsWord(styleOrMode, "EnableRBtnDelete");
    if (!IsEmpty(shapeData) && !LoadPoints(shapeData)) {
        return false;
    }
    RegisterDraw();
    return true;
}

/// What a host has stored is taken as it is: few points, crossing edges and concave corners are tested only where the
/// user makes them.
bool CClickPathShape::LoadPoints(const char* shapeData) {
    Json::Value root;
    if (!ParseJson(shapeData, root)) {
        return false;
    }
    const Json::Value& elements = MemberOf(root, name);
    if (int64_t{elements.size()} > maxPtNum) {
        return false;
    }
    const ViewSize view = KnownViewSize();
    Points loaded;
    for (Json::ArrayIndex i = 0; i < elements.size(); ++i) {
        if (IsPoint(elements[i])) {
            loaded.push_back(ReadRealPoint(elements[i], view));
        }
    }
    state = loaded.empty() ? Waiting : Complete;
    ReplacePoints(std::move(loaded));
    return true;
}

void CClickPathShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.points.empty()) {
        return;
    }
    DrawOpenPath(look.points, look.Thickness(), look.Colour(), surface);
    if (look.state == Drawing) {
        const PointF& last = look.points.back();
        DrawOpenPath({last, ClampToView(last, look.lastPoint)}, look.Thickness(), look.Colour(), surface);
    }
    DrawRest(look, surface);
}

} // namespace rulecanvas
