#include "shapes/lines/line_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/shape_factory.h"
#include "shapes/lines/crossing_mark.h"
#include "shapes/lines/line_geometry.h"

#include <algorithm>
#include <array>

namespace rulecanvas {
namespace {

template <LineOrientation orientation>
bool Register(const char* typeName) {
    return CShapeFactory::GetInstance().Register(typeName, &MakeShape<CLineShape, orientation>);
}

const std::array<bool, 3> registered{Register<LineOrientation::Free>("LineShape"),
                                     Register<LineOrientation::Vertical>("VerticalLineShape"),
                                     Register<LineOrientation::Horizontal>("HorizontalLineShape")};

constexpr int MinPointSpacing = 6;

int ShapeTypeOf(LineOrientation orientation) {
    switch (orientation) {
    case LineOrientation::Vertical:
        return 3;
    case LineOrientation::Horizontal:
        return 2;
    case LineOrientation::Free:
        break;
    }
    return 1;
}

} // namespace

CLineShape::CLineShape(LineOrientation lineOrientation) : orientation(lineOrientation) {
    shapeType = ShapeTypeOf(orientation);
    maxPtNum = LinePoints;
    DragPointsHook =
        decltype(DragPointsHook)::Bind<&CVideoAnalyseShape::BuildDragPoints>(static_cast<CVideoAnalyseShape*>(this));
}

CLineShape::CLineShape(const CLineShape& other) : CLineShape(other.orientation) {
    horizon = other.horizon;
    movedHLine = other.movedHLine;
    maxPtNum = other.maxPtNum.load();
    canAdjust = other.canAdjust;
    canMove = other.canMove;
    lineThickness = other.lineThickness;
    unSelLineThickness = other.unSelLineThickness;
    name = other.name;
    if (other.eventNameSet) {
        SetEventName(other.GetEventName().c_str());
    }
    platform::LockGuard guard(other.lock);
    selColor = other.selColor;
    unSelColor = other.unSelColor;
    textStyle = other.textStyle;
}

CVideoAnalyseShape* CLineShape::HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) {
    if (state == Complete) {
        hitLevel = OnPath(CopyPoints(), PositionOf(event)) ? OnOutline : Outside;
    } else if (state != Deleted) {
        hitLevel = Busy;
    }
    return this;
}

void CLineShape::ClearShape() {
    ClearPoints(); // first: a paint must not see a rubber line to the origin
    SetLastPoint(PointF{});
    CGestureShape::ClearShape();
}

void CLineShape::RemoveSubShape(ShapeID /*id*/) {
    ClearShape();
}

size_t CLineShape::MaximumPoints() const {
    return LinePoints;
}

bool CLineShape::IsAcceptable(const Points& path, bool complete) const {
    return ValidationHook.Accepts(path, complete);
}

PointF CLineShape::Oriented(PointF point, const PointF& other) const {
    if (orientation == LineOrientation::Vertical) {
        point.x = other.x;
    } else if (orientation == LineOrientation::Horizontal) {
        point.y = other.y;
    }
    return point;
}

void CLineShape::StartDrawing(const PointF& press) {
    if (AcceptsPoint(press) && IsAcceptable({press}, false) && state == Waiting) {
        SetLastPoint(press);
        ReplacePoints({press});
        BeginGesture(Drawing);
    }
}

void CLineShape::StartEditing(const PointF& press, int hitLevel) {
    if (!canAdjust) {
        return;
    }
    grabbedIndex = VertexIndex(CopyPoints(), press);
    if (grabbedIndex >= 0) {
        Grab(Adjusting);
    } else if (hitLevel == OnOutline) {
        SetAnchorPoint(press);
        Grab(Moving);
    }
}

bool CLineShape::OnMouseMove(const PointF& position) {
    switch (state) {
    case Drawing:
        DragRubberEnd(position);
        break;
    case Moving:
        MoveTo(position);
        break;
    case Adjusting:
        AdjustEndpoint(position);
        break;
    default:
        break;
    }
    return true;
}

void CLineShape::DragRubberEnd(const PointF& position) {
    const Points path = CopyPoints();
    if (!path.empty()) {
        SetLastPoint(ClampToView(path.front(), position));
    }
}

bool CLineShape::OnButtonUp(const PointF& position, const ContainerMouseEvent& /*event*/) {
    switch (state) {
    case Drawing:
        PlacePoint(position);
        break;
    case Moving:
    case Adjusting:
        FinishEditing(position);
        break;
    default:
        break;
    }
    return true;
}

void CLineShape::PlacePoint(const PointF& position) {
    bool beyondLimit = false;
    const bool taken = EditPoints([&](Points& path) {
        if (path.empty() || path.size() >= MaximumPoints() || !HasView()) {
            return false;
        }
        const PointF release = Released(position, path.front());
        beyondLimit = !eventNameSet && !LimitAllows(path.front(), release);
        return !beyondLimit && OfferPoint(release, path);
    });
    const Points path = CopyPoints();
    const bool complete = path.size() >= MaximumPoints();
    if (beyondLimit || (taken && !IsAcceptable(path, complete))) {
        RestartDrawing();
    } else if (taken && complete) {
        FinishGesture();
    }
}

PointF CLineShape::Released(const PointF& position, const PointF& first) const {
    PointF release = ClampToView(first, position);
    if (horizon || movedHLine) {
        release.y = first.y;
    }
    return release;
}

bool CLineShape::LimitAllows(const PointF& first, const PointF& point) const {
    return InPolygon(limitArea, point) && !CrossesPath(first, point, limitArea);
}

/// Appends the point unless it may not be there or is too near to the last one.
bool CLineShape::OfferPoint(const PointF& point, Points& path) const {
    const PointF next = path.size() == 1 ? Oriented(point, path.front()) : point;
    if (!AcceptsPoint(next) || CloserThan(MinPointSpacing, path.back(), next)) {
        return false;
    }
    path.push_back(next);
    return true;
}

void CLineShape::MoveTo(const PointF& position) {
    if (canMove && !FollowMouse(position) && state == Moving) {
        state = Complete; // a line that meets the border is let go
        EndGesture();
    }
}

bool CLineShape::AdjustEndpoint(const PointF& position) {
    return canAdjust && !movedHLine && HasView() && EditPoints([&](Points& adjusted) {
               if (!DragPointsHook(grabbedIndex, position, adjusted)) {
                   return false;
               }
               if (horizon && adjusted.size() >= LinePoints) {
                   adjusted[1].y = adjusted[0].y;
               }
               return true;
           });
}

void CLineShape::FinishEditing(const PointF& release) {
    const bool undisturbed = Undisturbed([&] {
        AdjustEndpoint(release);
        ValidationHook(CopyPoints(), true);
    });
    if (undisturbed) {
        FinishGesture();
    }
}

bool CLineShape::MoveShape(float dx, float dy) {
    return CGestureShape::MoveShape(horizon || movedHLine ? 0.0F : dx, dy);
}

bool CLineShape::BuildDragPoints(int index, const PointF& current, Points& out) {
    out = CopyPoints();
    if (index < 0 || index > 1 || out.size() < LinePoints) {
        return false;
    }
    const PointF other = out[static_cast<size_t>(1 - index)];
    out[static_cast<size_t>(index)] = ClampToView(other, Oriented(current, other));
    return true;
}

void CLineShape::SetShapePoints(Points newPoints) {
    if (newPoints.size() == LinePoints) {
        ReplacePoints(std::move(newPoints));
    }
}

bool CLineShape::SetLimitArea(const CVideoAnalyseShape* area) {
    if (area == nullptr) {
        return false;
    }
    area->GetShapePoints(limitArea);
    if (!limitArea.empty()) {
        limitArea.push_back(PointF(limitArea.front()));
    }
    return true;
}

void CLineShape::Draw(const ShapeLook& look, IContainerGraphics& surface) {
    if (look.points.size() >= LinePoints) {
        DrawMarkedSegment(look.points[0], look.points[1], look, surface);
        if (!look.caption.empty()) {
            DrawShowName(look, surface, look.Colour());
        }
    } else if (look.points.size() == 1 && look.PointerInView()) {
        DrawMarkedSegment(look.points[0], Oriented(look.lastPoint, look.points[0]), look, surface);
    }
    if (look.handles) {
        DrawAdjustBoxes(look.points, surface, look.Colour());
    }
}

/// The mark goes by the direction that the host gave; the style's direction is that of arrow lines.
void CLineShape::DrawMarkedSegment(const PointF& from, const PointF& to, const ShapeLook& look,
                                   IContainerGraphics& surface) {
    const int crossing = hostDirection;
    DrawOpenPath({from, to}, look.Thickness(), look.Colour(), surface);
    if (crossing == NoCrossing) {
        return;
    }
    const CrossStroke stroke = DrawDirectionMark(from, to, look.Colour(), surface);
    if (crossing >= CrossingAToB && crossing <= CrossingBothWays) {
        for (const CrossingArrow& arrow : CrossingArrows(from, to, stroke, crossing)) {
            DrawDirectionArrow(arrow.tail, arrow.tip, look.Colour(), surface);
        }
    }
}

} // namespace rulecanvas
