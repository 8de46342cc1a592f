#include "shapes/regions/rectangle_shape.h"

#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/regions/mosaic.h"

#include <algorithm>

namespace rulecanvas {
namespace {

const bool registered = Register<CRectangleShape>("Rect");

constexpr Effect FinishDrawn[] = {Effect::StopListening, Effect::GiveMouse, Effect::TellCreation, Effect::TellState};

} // namespace

CVideoAnalyseShape* CRectangleShape::HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (!enableRBtnDelete) {
        return nullptr;
    }
    LockGuard guard(lock);
    const int level = state == Complete ? LevelAt(PositionOf(event)) : Miss;
    hitLevel = level == Miss ? hitLevel : level;
    return this;
}

int CRectangleShape::LevelAt(const PointF& press) {
    if (OnRing(figure.points, press)) {
        return OnOutline;
    }
    if (InPolygon(figure.points, press)) {
        return Inside;
    }
    return selected ? Outside : Miss;
}

Outcome CRectangleShape::EndDrawing(const PointerEvent& event) {
    const PointF release = WholePixels(event.position);
    if (!DragCoversCropLimit(release) || !AcceptsPoint(release, event.view)) {
        return {};
    }
    if (release == figure.anchorPoint || !DragPoint(figure.grabbedIndex, release, event.view)) {
        return {Waiting, effects::LetGo}; // with the corners that the drag had reached, until others replace them
    }
    return {Complete, FinishDrawn};
}

Outcome CRectangleShape::StartEditing(const PointerEvent& press, int hitLevel) {
    const Outcome outcome = CBoxShape::StartEditing(press, hitLevel);
    if (figure.grabbedIndex >= 0) {
        const size_t opposite = (static_cast<size_t>(figure.grabbedIndex) + 2) % CornerCount;
        figure.anchorPoint = figure.points.at(opposite);
    }
    return outcome;
}

void CRectangleShape::PlaceAt(const PointF& centre, int width, int height) {
    const ClientRect view = ViewRect();
    const auto halfWidth = static_cast<float>(width / 2);   // NOLINT(bugprone-integer-division): whole pixels
    const auto halfHeight = static_cast<float>(height / 2); // NOLINT(bugprone-integer-division)
    {
        LockGuard guard(lock);
        figure.anchorPoint = Shifted(centre, -halfWidth, -halfHeight);
        if (SpanCorners(figure.anchorPoint, Shifted(centre, halfWidth, halfHeight), view, minimumSide)) {
            Enter(Complete);
        }
    }
    MarkClaimStale();
    RegisterDraw();
}

bool CRectangleShape::CoversCropLimit(const PointF& topLeft, const PointF& bottomRight) const {
    if (cropLimit.left < 0) {
        return true;
    }
    return TruncateToInt(topLeft.x) <= cropLimit.left && TruncateToInt(topLeft.y) <= cropLimit.top &&
           TruncateToInt(bottomRight.x) >= cropLimit.right && TruncateToInt(bottomRight.y) >= cropLimit.bottom;
}

bool CRectangleShape::DragCoversCropLimit(const PointF& release) const {
    const PointF& anchor = figure.anchorPoint;
    return CoversCropLimit(PointF{std::min(anchor.x, release.x), std::min(anchor.y, release.y)},
                           PointF{std::max(anchor.x, release.x), std::max(anchor.y, release.y)});
}

Outcome CRectangleShape::EndMove(const PointerEvent& event) {
    const PointF release = WholePixels(event.position);
    const auto dx = static_cast<float>(TruncateToInt(release.x - figure.anchorPoint.x));
    const auto dy = static_cast<float>(TruncateToInt(release.y - figure.anchorPoint.y));
    const Points& corners = figure.points;
    const bool covers = !HasCorners() || CoversCropLimit(Shifted(corners[0], dx, dy), Shifted(corners[2], dx, dy));
    return covers ? Finish() : Outcome{};
}

Refused CRectangleShape::Load(Loading& loading) {
    if (!IsArrayOf(loading.geometry, 2)) {
        return loading.Refuse("an array of 2 corners");
    }
    const PointF first = ReadRealPoint(loading.geometry[0], figure.fitted);
    const PointF second = ReadRealPoint(loading.geometry[1], figure.fitted);
    figure.anchorPoint = first;
    if (SpanCorners(first, second, loading.view, minimumSide)) {
        Enter(Complete);
    }
    return std::nullopt;
}

void CRectangleShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& corners = look.Path();
    if (corners.size() != CornerCount) {
        return;
    }
    const ColorF& colour = look.Colour();
    const float thickness = look.style->penStyle == PatternedPen ? 1.0F : look.Thickness();
    DrawCaptionAt(corners[0], look.Text(colour, FigureCaptionSize), look.caption, pass.surface);
    if (!textOnly) {
        pass.surface.DrawRectangle(&corners[0], &corners[2], thickness, &colour, look.style->penStyle);
    }
    if (look.style->mosaicEnable) {
        DrawMosaic(corners[0], corners[2], look.style->mosaicSize, look.figure.fitted, pass.surface);
    }
    if (look.handles && !textOnly) {
        DrawAdjustBoxes(corners, pass.surface, colour);
    }
}

} // namespace rulecanvas
