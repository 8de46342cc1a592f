#include "shapes/lines/line_family_shape.h"

#include <algorithm>
#include <array>

namespace rulecanvas {
namespace {

bool ReachesAcrossTheView(const std::string& name) {
    constexpr std::array<const char*, 5> names{"DetectLine", "ForLine", "MiddleLine", "StopLine", "BackLine"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

Outcome CLineFamilyShape::StartDrawing(const PointerEvent& press) {
    figure.points.assign(1, press.position);
    if (!PassesValidation(figure.points, false)) {
        figure.points.clear();
        return {};
    }
    figure.lastPoint = press.position;
    return Begin(Drawing);
}

Outcome CLineFamilyShape::EndDrawing(const PointerEvent& event) {
    const Points& path = figure.points;
    if (path.empty() || path.size() >= MaximumPoints() || !event.HasView()) {
        return {};
    }
    PointF release = event.ClampedFrom(path.front());
    if (horizon || movedHLine) {
        release.y = path.front().y;
    }
    if (!IsWithinLimit(path.front(), release)) {
        return StartOver();
    }
    if (!OfferPoint(release, event.view)) {
        return {};
    }
    const bool complete = path.size() >= MaximumPoints();
    if (!PassesValidation(path, complete)) {
        return StartOver();
    }
    return complete ? Finish() : Outcome{};
}

/// Appends the point unless it may not be there or is too near to the last one.
bool CLineFamilyShape::OfferPoint(const PointF& point, const ClientRect& view) {
    constexpr int minimumSpacing = 6;
    Points& path = figure.points;
    const PointF next = path.size() == 1 ? Oriented(point, path.front()) : point;
    if (!AcceptsPoint(next, view) || CloserThan(minimumSpacing, path.back(), next)) {
        return false;
    }
    path.push_back(next);
    return true;
}

Outcome CLineFamilyShape::StartEditing(const PointerEvent& press, int hitLevel) {
    if (!style->canAdjust) {
        return {};
    }
    figure.grabbedIndex = VertexIndex(figure.points, press.position);
    if (figure.grabbedIndex >= 0) {
        return Grab(Adjusting);
    }
    return hitLevel == OnOutline ? GrabWhole(press.position) : Outcome{};
}

/// A line that meets the border is let go.
Outcome CLineFamilyShape::MoveTo(const PointerEvent& position) {
    if (style->canMove && !FollowMouse(position.position, position.view)) {
        return {Complete, effects::LetGo};
    }
    return {};
}

void CLineFamilyShape::AdjustEndpoint(const PointerEvent& position) {
    Points& path = figure.points;
    if (!style->canAdjust || movedHLine || !position.HasView() ||
        !DragPoint(figure.grabbedIndex, position.position, position.view)) {
        return;
    }
    if (horizon && path.size() >= LinePoints) {
        path[1].y = path[0].y;
    }
}

Refused CLineFamilyShape::Load(Loading& loading) {
    const Json::Value& pairs = loading.geometry;
    if (!pairs.isArray() || pairs.size() < LinePoints) {
        return loading.Refuse("an array of 2 points or more");
    }
    const auto count = static_cast<Json::ArrayIndex>(std::min<size_t>(pairs.size(), MaximumPoints()));
    figure.points.reserve(count);
    for (Json::ArrayIndex i = 0; i < count; ++i) {
        figure.points.push_back(ReadPoint(pairs[i], figure.fitted));
    }
    if (count == LinePoints && ReachesAcrossTheView(name)) {
        figure.points = ExtendedAcrossGrid(figure.points);
    }
    Enter(Complete);
    return std::nullopt;
}

} // namespace rulecanvas
