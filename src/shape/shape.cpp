#include "shape/shape.h"

#include "shape/text.h"

namespace rulecanvas {

CVideoAnalyseShape::CVideoAnalyseShape() : style(Shared(ShapeStyle())), shapeId(platform::IssueIdentity(this)) {}

void CVideoAnalyseShape::GetShapePoints(Points& out) const {
    LockGuard guard(lock);
    out = figure.points;
}

void CVideoAnalyseShape::SetSelectedState(bool select) {
    selected = select;
    adjustBoxShown = select;
    MarkClaimStale();
}

int CVideoAnalyseShape::SetShapeDirection(ShapeID /*id*/, int newDirection) {
    LockGuard guard(lock);
    ChangeStyle([newDirection](ShapeStyle& changed) {
        changed.hostDirection = newDirection;
        changed.direction = newDirection;
    });
    return 1;
}

bool CVideoAnalyseShape::GetPressPoint(PointF& out) const {
    LockGuard guard(lock);
    out = figure.anchorPoint;
    return true;
}

void CVideoAnalyseShape::SetShapePoints(Points newPoints) {
    LockGuard guard(lock);
    if (TakesPoints(newPoints)) {
        figure.points = std::move(newPoints);
    }
    MarkClaimStale();
}

void CVideoAnalyseShape::SetSubShapeShowName(ShapeID id, const char* text) {
    if (CVideoAnalyseShape* part = FindSubShape(id)) {
        part->SetShowNameText(text);
    }
}

void CVideoAnalyseShape::FitToClientRect(const ClientRect& viewZero) {
    LockGuard guard(lock);
    figure.FitTo(viewZero);
    MarkClaimStale();
}

int CVideoAnalyseShape::GetShapeDirection() const {
    LockGuard guard(lock);
    return style->direction;
}

void CVideoAnalyseShape::SetEventName(const char* text) {
    eventName = TextOrEmpty(text);
    eventNameSet = true;
}

void CVideoAnalyseShape::SetShowNameText(const char* text) {
    std::unique_ptr<const std::string> copy;
    if (!IsEmpty(text)) {
        copy = std::make_unique<const std::string>(text);
    }
    LockGuard guard(lock);
    showNameText.swap(copy);
}

void CVideoAnalyseShape::EnableShape(bool enable) {
    if (!enable) {
        adjustBoxShown = false;
    }
    selected = enable;
    enabled = enable;
    MarkClaimStale();
}

void CVideoAnalyseShape::SetShapeColor(int red, int green, int blue, bool selectedColour) {
    const ColorF colour = OpaqueColour(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
    LockGuard guard(lock);
    ChangeStyle([&](ShapeStyle& changed) { (selectedColour ? changed.selColor : changed.unSelColor) = colour; });
}

void CVideoAnalyseShape::SetMaxPtNum(int maximum, int minimum) {
    constexpr int leastMinimum = 3;
    LockGuard guard(lock);
    maxPtNum = maximum;
    minPtNum = minimum <= leastMinimum ? leastMinimum : minimum;
    MarkClaimStale();
}

void CVideoAnalyseShape::SetViewId(ViewID view, const ClientRect& clientRect) {
    viewId = view;
    LockGuard guard(lock);
    figure.Adopt(clientRect);
}

OwnerHooks& CVideoAnalyseShape::Hooks() {
    if (hooks == nullptr) {
        hooks = std::make_unique<OwnerHooks>();
    }
    return *hooks;
}

void CVideoAnalyseShape::Retire() noexcept {
    try {
        Dispose();
    } catch (...) { // of the host, which hears of the end: the shape ends all the same
    }
    container = nullptr;
}

void CVideoAnalyseShape::FreeFigure() noexcept {
    LockGuard guard(lock);
    Points().swap(figure.points);
}

ClientRect CVideoAnalyseShape::ViewRect() const {
    IShapeContainer* owner = container;
    return owner == nullptr ? ClientRect{} : owner->GetClientRect(viewId);
}

void CVideoAnalyseShape::LearnViewSize() {
    {
        LockGuard guard(lock);
        if (figure.fitted.Known()) {
            return;
        }
    }
    const ClientRect rect = ViewRect();
    LockGuard guard(lock);
    LearnViewSize(rect);
}

void CVideoAnalyseShape::LearnViewSize(const ClientRect& view) {
    if (figure.fitted.Known()) {
        return;
    }
    figure.Adopt(view);
    if (IShapeContainer* owner = container) {
        owner->FitChanged();
    }
}

void CVideoAnalyseShape::CopyLook(ShapeLook& look) const {
    look.figure = figure;
    if (look.style != style) { // counting one more user takes longer than all else here
        look.style = style;
    }
    if (showNameText != nullptr) {
        look.caption = *showNameText;
    } else {
        look.caption.clear();
    }
    look.state = state;
    look.selected = selected;
    look.handles = adjustBoxShown;
}

bool CVideoAnalyseShape::AcceptsPoint(const PointF& point, const ClientRect& view) const {
    if (hooks != nullptr && hooks->AdjustPointCoordinateHook) {
        return hooks->AdjustPointCoordinateHook(viewId, point);
    }
    return InClientArea(view, point);
}

bool CVideoAnalyseShape::PassesValidation(const Points& path, bool complete) const {
    return hooks == nullptr || hooks->ValidationHook.Accepts(path, complete);
}

void CVideoAnalyseShape::MarkClaimStale() {
    IShapeContainer* owner = container;
    if (owner != nullptr && !claimIsStale.exchange(true)) {
        owner->ClaimChanged(*this);
    }
}

void CVideoAnalyseShape::RegisterDraw() {
    IShapeContainer* owner = container;
    if (owner != nullptr && drawTicket == 0) {
        owner->RegisterDrawEvent(shared_from_this());
    }
}

} // namespace rulecanvas
