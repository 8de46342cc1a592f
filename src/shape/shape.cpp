#include "shape/shape.h"

#include "shape/geometry.h"
#include "shape/text.h"

#include <cstring>

namespace rulecanvas {

using platform::LockGuard;

CVideoAnalyseShape::CVideoAnalyseShape() : shapeId(platform::IssueIdentity(this)) {
    std::strncpy(textStyle.face, "MS Sans Serif", sizeof(textStyle.face) - 1);
    AdjustPointCoordinateHook = Delegate<bool(ViewID, const PointF&)>::Bind<&CVideoAnalyseShape::IsInView>(this);
}

CVideoAnalyseShape* CVideoAnalyseShape::HitTestRButtonDown(const ContainerMouseEvent& /*event*/, int& /*hitLevel*/) {
    return nullptr;
}

CVideoAnalyseShape* CVideoAnalyseShape::HitTestAltRButtonEvent(const ContainerMouseEvent& /*event*/,
                                                               int& /*hitLevel*/) {
    return nullptr;
}

void CVideoAnalyseShape::HandleLButtonDownEvent(const ContainerMouseEvent& /*event*/, int /*hitLevel*/) {}

void CVideoAnalyseShape::HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int /*hitLevel*/) {}

void CVideoAnalyseShape::OnReservedEvent(uint32_t /*first*/, uint32_t /*second*/) {}

void CVideoAnalyseShape::HandleContainerEvent(const ContainerMouseEvent& /*event*/, int /*hitLevel*/) {}

void CVideoAnalyseShape::GetShapePoints(Points& out) const {
    out = CopyPoints();
}

bool CVideoAnalyseShape::GetVideoAnalyseShapeConfigData(char* /*buffer*/, int /*size*/) {
    return false;
}

uint32_t CVideoAnalyseShape::AddSubShape(uint32_t /*first*/, uint32_t /*second*/, uint32_t /*third*/) {
    return 0;
}

bool CVideoAnalyseShape::SelectShape(bool select, int /*mode*/) {
    SetSelectedState(select);
    return true;
}

void CVideoAnalyseShape::SetSelectedState(bool select) {
    selected = select;
    adjustBoxShown = select;
}

void CVideoAnalyseShape::RemoveSubShape(ShapeID /*id*/) {}

CVideoAnalyseShape* CVideoAnalyseShape::FindSubShape(ShapeID /*id*/) {
    return nullptr;
}

int CVideoAnalyseShape::SetShapeDirection(ShapeID /*id*/, int newDirection) {
    hostDirection = newDirection;
    direction = newDirection;
    return 1;
}

bool CVideoAnalyseShape::RestartDrawing() {
    return true;
}

void CVideoAnalyseShape::ShowShape(bool show) {
    visible = show;
}

bool CVideoAnalyseShape::MoveShape(float /*dx*/, float /*dy*/) {
    return false;
}

bool CVideoAnalyseShape::BuildDragPoints(int /*index*/, const PointF& /*current*/, Points& /*out*/) {
    return false;
}

bool CVideoAnalyseShape::GetPressPoint(PointF& out) const {
    out = anchorPoint;
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the shapes that use the list take it over
void CVideoAnalyseShape::SetShapePoints(Points /*newPoints*/) {}

void CVideoAnalyseShape::SetSubShapeShowName(ShapeID id, const char* text) {
    if (CVideoAnalyseShape* part = FindSubShape(id)) {
        part->SetShowNameText(text);
    }
}

void CVideoAnalyseShape::FitToClientRect() {
    IShapeContainer* owner = container;
    if (owner == nullptr || !FittedSize().Known()) {
        return;
    }
    const ClientRect rect = owner->GetClientRect(0);
    if (rect.right <= 0 || rect.bottom <= 0 || !SizeOf(rect).Known()) {
        return; // a minimised window must not collapse its figures
    }
    LockGuard guard(lock);
    if (clientWidth <= 0 || clientHeight <= 0) {
        return; // another thread asked while the view had no size
    }
    const double scaleX = rect.right * 1.0 / clientWidth;
    const double scaleY = rect.bottom * 1.0 / clientHeight;
    if (scaleX != 1.0 || scaleY != 1.0) {
        for (PointF& point : points) {
            point.x = static_cast<float>(point.x * scaleX);
            point.y = static_cast<float>(point.y * scaleY);
        }
        ++pointsVersion;
    }
    clientWidth = SizeOf(rect).width;
    clientHeight = SizeOf(rect).height;
    clientRect = rect;
}

int CVideoAnalyseShape::GetShapeDirection() const {
    return direction;
}

void CVideoAnalyseShape::SetContainer(IShapeContainer* owner) {
    container = owner;
}

void CVideoAnalyseShape::SetEventName(const char* text) {
    eventName = TextOrEmpty(text);
    eventNameSet = true;
}

void CVideoAnalyseShape::SetShowNameText(const char* text) {
    std::string copy = TextOrEmpty(text);
    LockGuard guard(lock);
    showNameText = std::move(copy);
}

bool CVideoAnalyseShape::EnableShape(bool enable) {
    if (!enable) {
        adjustBoxShown = false;
    }
    selected = enable;
    enabled = enable;
    return true;
}

bool CVideoAnalyseShape::SetShapeColor(int red, int green, int blue, bool selectedColour) {
    LockGuard guard(lock);
    (selectedColour ? selColor : unSelColor) =
        OpaqueColour(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
    return true;
}

void CVideoAnalyseShape::SetMaxPtNum(int maximum, int minimum) {
    constexpr int leastMinimum = 3;
    maxPtNum = maximum;
    minPtNum = minimum <= leastMinimum ? leastMinimum : minimum;
}

void CVideoAnalyseShape::SetViewId(ViewID view) {
    viewId = view;
    AskViewSize();
}

void CVideoAnalyseShape::AskViewSize() {
    const ViewSize size = SizeOf(ViewRect());
    LockGuard guard(lock);
    clientWidth = size.width;
    clientHeight = size.height;
    clientRect.right = size.width;
    clientRect.bottom = size.height;
}

void CVideoAnalyseShape::Retire() {
    Dispose();
    container = nullptr;
}

void CVideoAnalyseShape::ClearPoints() {
    ReplacePoints({});
}

Points CVideoAnalyseShape::CopyPoints() const {
    LockGuard guard(lock);
    return points;
}

FittedPoints CVideoAnalyseShape::CopyFitted() {
    KnownViewSize();
    LockGuard guard(lock);
    return FittedPoints{points, ViewSize{clientWidth, clientHeight}};
}

void CVideoAnalyseShape::AppendPointsTo(Points& out) const {
    LockGuard guard(lock);
    out.insert(out.end(), points.begin(), points.end());
}

size_t CVideoAnalyseShape::PointCount() const {
    LockGuard guard(lock);
    return points.size();
}

void CVideoAnalyseShape::ReplacePoints(Points newPoints) {
    LockGuard guard(lock);
    points = std::move(newPoints);
    ++pointsVersion;
}

void CVideoAnalyseShape::AppendPoint(const PointF& point) {
    LockGuard guard(lock);
    points.push_back(point);
    ++pointsVersion;
}

ShapeLook CVideoAnalyseShape::CopyLook() const {
    ShapeLook look;
    look.state = state;
    look.selected = selected;
    look.handles = adjustBoxShown;
    LockGuard guard(lock);
    look.selThickness = lineThickness;
    look.unSelThickness = unSelLineThickness;
    look.points = points;
    look.selColour = selColor;
    look.unSelColour = unSelColor;
    look.textStyle = textStyle;
    look.caption = showNameText;
    look.lastPoint = lastPoint;
    look.anchorPoint = anchorPoint;
    look.size = ViewSize{clientWidth, clientHeight};
    look.clientRect = clientRect;
    return look;
}

void CVideoAnalyseShape::SetLastPoint(const PointF& point) {
    LockGuard guard(lock);
    lastPoint = point;
}

void CVideoAnalyseShape::SetAnchorPoint(const PointF& point) {
    LockGuard guard(lock);
    anchorPoint = point;
}

ClientRect CVideoAnalyseShape::ViewRect() const {
    IShapeContainer* owner = container;
    return owner == nullptr ? ClientRect{} : owner->GetClientRect(viewId);
}

ViewSize CVideoAnalyseShape::KnownViewSize() {
    if (!FittedSize().Known()) {
        AskViewSize();
    }
    return FittedSize();
}

ViewSize CVideoAnalyseShape::FittedSize() const {
    LockGuard guard(lock);
    return ViewSize{clientWidth, clientHeight};
}

bool CVideoAnalyseShape::AcceptsPoint(const PointF& point) const {
    return !IsRetired() && AdjustPointCoordinateHook(viewId, point);
}

bool CVideoAnalyseShape::RequestCapture(bool take) {
    IShapeContainer* owner = container;
    return owner != nullptr && owner->RequestCapture(take);
}

void CVideoAnalyseShape::RegisterDraw() {
    IShapeContainer* owner = container;
    if (owner != nullptr && !drawRegistered) {
        owner->RegisterDrawEvent(weak_from_this(), DrawHook);
        drawRegistered = true;
    }
}

void CVideoAnalyseShape::UnregisterDraw() {
    IShapeContainer* owner = container;
    if (owner != nullptr && drawRegistered) {
        owner->unRegisterDrawEvent(DrawHook);
        drawRegistered = false;
    }
}

bool CVideoAnalyseShape::IsInView(ViewID view, const PointF& point) {
    IShapeContainer* owner = container;
    return owner != nullptr && owner->IsInClientArea(view, point);
}

} // namespace rulecanvas
