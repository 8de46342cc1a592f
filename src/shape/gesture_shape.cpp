#include "shape/gesture_shape.h"

#include <algorithm>

namespace rulecanvas {

CVideoAnalyseShape* CGestureShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    LockGuard guard(lock);
    if (state == Complete) {
        const int level = LevelAt(PositionOf(event));
        hitLevel = level == Miss ? hitLevel : level;
    } else if (IsBusy()) {
        hitLevel = Busy;
    }
    return this;
}

void CGestureShape::HandleLButtonDownEvent(const PointerEvent& event, int hitLevel) {
    Take(&event.record, [&]() -> Outcome {
        switch (state) {
        case Waiting:
            return MayStart(event) ? StartDrawing(event) : Outcome{};
        case Drawing:
            return ContinueDrawing(event);
        case Complete:
            if (hitLevel == Outside) {
                adjustBoxShown = false; // a press beside the shape hides its handles
                return {};
            }
            return StartEditing(event, hitLevel);
        default:
            return {};
        }
    });
}

void CGestureShape::OnMouseListened(MouseListenerKind kind, const PointerEvent& event) {
    using Step = Outcome (CGestureShape::*)(const PointerEvent&);
    struct Steps {
        Step onMove, onRelease;
    };
    static constexpr Steps stepsIn[] = {
        {nullptr, nullptr}, // Deleted
        {&CGestureShape::ResumeDrawing, &CGestureShape::FinishWaiting},
        {&CGestureShape::DrawTo, &CGestureShape::EndDrawing},
        {nullptr, nullptr}, // Complete
        {&CGestureShape::MoveTo, &CGestureShape::EndMove},
        {&CGestureShape::AdjustTo, &CGestureShape::EndAdjust},
    };
    const bool isRelease = kind == MouseListenerKind::ButtonUp;
    if (event.record.viewId != GetViewId() || (!isRelease && !event.HasView())) {
        return;
    }
    bool concludesLater = false;
    const bool isStill = Take(&event.record, [&]() -> Outcome {
        const Steps& steps = stepsIn[state];
        const Step step = isRelease ? steps.onRelease : steps.onMove;
        const Outcome outcome = step == nullptr ? Outcome{} : (this->*step)(event);
        concludesLater = outcome.concludesLater;
        return outcome;
    });
    if (concludesLater && isStill) {
        Take(&event.record, [&] { return state == Drawing ? ConcludeDrawing(event) : Outcome{}; });
    }
}

Outcome CGestureShape::StartEditing(const PointerEvent& press, int /*hitLevel*/) {
    figure.grabbedIndex = VertexIndex(figure.points, press.position);
    if (figure.grabbedIndex >= 0) {
        figure.anchorPoint = figure.points[static_cast<size_t>(figure.grabbedIndex)];
        return Grab(Adjusting);
    }
    return InPolygon(figure.points, press.position) ? GrabWhole(press.position) : Outcome{};
}

Outcome CGestureShape::Grab(ShapeState gesture) {
    adjustBoxShown = true;
    selected = true;
    return {gesture, effects::Grab};
}

void CGestureShape::ClearShape() {
    Take(nullptr, [&]() -> Outcome {
        Forget();
        return {std::nullopt, effects::LetGo};
    });
}

void CGestureShape::DeleteByRightButton(int hitLevel) {
    Take(nullptr, [&]() -> Outcome {
        if (!enableRBtnDelete || (hitLevel != OnOutline && hitLevel != Inside)) {
            return {};
        }
        Forget();
        return {Deleted, effects::Remove};
    });
}

bool CGestureShape::MoveShape(float dx, float dy) {
    const ClientRect view = ViewRect();
    LockGuard guard(lock);
    const bool moved = MovePoints(dx, dy, view);
    MarkClaimStale();
    return moved;
}

bool CGestureShape::BuildDragPoints(int index, const PointF& current, Points& out) {
    const ClientRect view = ViewRect();
    LockGuard guard(lock);
    Points before = figure.points;
    const bool dragged = DragPoint(index, current, view);
    out = figure.points;
    figure.points = std::move(before);
    return dragged;
}

bool CGestureShape::FollowMouse(const PointF& position, const ClientRect& view) {
    const PointF& from = figure.anchorPoint;
    const bool moved = MovePoints(position.x - from.x, position.y - from.y, view);
    figure.anchorPoint = moved ? position : from;
    return moved;
}

bool CGestureShape::MovePoints(float dx, float dy, const ClientRect& view) {
    const auto stays = [&](const PointF& point) { return AcceptsPoint(Shifted(point, dx, dy), view); };
    if (!std::all_of(figure.points.begin(), figure.points.end(), stays)) {
        return false;
    }
    Shift(figure.points, dx, dy);
    return true;
}

Claim CGestureShape::GetClaim() const {
    LockGuard guard(lock);
    if (state == Complete) {
        return CompleteClaim();
    }
    return IsBusy() ? Claim::Everywhere() : Claim::Nowhere();
}

void CGestureShape::OnDraw(PaintPass& pass) {
    if (!IsShownIn(pass.view)) {
        return;
    }
    if (!CopyFitted(pass)) {
        pass.AskPaintedRect();
        CopyFitted(pass);
    }
    Draw(pass.look, pass);
}

bool CGestureShape::CopyFitted(PaintPass& pass) {
    LockGuard guard(lock);
    if (beforePaint == BeforePaint::Fit) {
        figure.FitTo(pass.viewZero);
    } else if (beforePaint == BeforePaint::Prepare && !PrepareForPaint(pass)) {
        return false;
    }
    CopyLook(pass.look);
    return true;
}

} // namespace rulecanvas
