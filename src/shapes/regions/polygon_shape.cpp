#include "shapes/regions/polygon_shape.h"

#include "shape/drawing.h"
#include "shape/geometry.h"
#include "shape/json_text.h"
#include "shape/point_json.h"
#include "shape/segments.h"
#include "shape/shape_factory.h"

#include <algorithm>

namespace rulecanvas {
namespace {

using EdgePress = CPolygonShape::EdgePress;

const bool registered =
    CShapeFactory::GetInstance().Register("Polygon", &MakeShape<CPolygonShape, EdgePress::Ignored>) &&
    CShapeFactory::GetInstance().Register("VirablePolygon", &MakeShape<CPolygonShape, EdgePress::InsertsVertex>);

constexpr size_t FewestWritten = 3;

enum DrawnDirection { NoDirection = -1, Inward = 0, Outward = 1, BothWays = 2 };

} // namespace

CPolygonShape::CPolygonShape(EdgePress edgePress) {
    if (edgePress == EdgePress::InsertsVertex) {
        EdgeInsertHook = decltype(EdgeInsertHook)::Bind<&CPolygonShape::InsertVertex>(this);
    }
}

bool CPolygonShape::RestartDrawing() {
    selected = true;
    return CClickPathShape::RestartDrawing();
}

/// A move keeps every edge apart from the others but for the rounding of fractions of a pixel, which can bring a vertex
/// onto an edge.
bool CPolygonShape::MoveShape(float dx, float dy) {
    const Points ring = CopyPoints();
    return (!IsSound(ring) || IsSound(Moved(ring, dx, dy))) && CClickPathShape::MoveShape(dx, dy);
}

bool CPolygonShape::IsSound(const Points& ring) const {
    return !RingCrosses(ring) && IsConvexEnough(ring);
}

bool CPolygonShape::IsOnOutline(const Points& ring, const PointF& press) const {
    return OnRing(ring, press);
}

/// A polygon that takes new vertices spends every right press on that: it is not deleted by one.
bool CPolygonShape::HandleRightPress(const PointF& press) {
    EdgeInsertHook(press);
    return !EdgeInsertHook;
}

void CPolygonShape::InsertVertex(const PointF& press) {
    EditPoints([&](Points& ring) {
        const int count = static_cast<int>(ring.size());
        if (count < minPtNum || count >= maxPtNum) {
            return false;
        }
        for (size_t edge = 0; edge < ring.size(); ++edge) {
            const size_t second = (edge + 1) % ring.size();
            if (NearSegment(ring[edge], ring[second], press)) {
                ring.insert(ring.begin() + static_cast<std::ptrdiff_t>(second), press);
                return true;
            }
        }
        return false;
    });
}

/// Offering the right button's finish is where a drawing that cannot be closed ends: nothing the user could click next
/// would be sure to save it, so it starts over.
bool CPolygonShape::OfferFinish() {
    if (ClosingEdgeCrosses(CopyPoints())) {
        DiscardDrawing();
        return false;
    }
    return true;
}

void CPolygonShape::DiscardDrawing() {
    ClearPoints();
    Disturb();
    const int previous = state.exchange(Waiting);
    SetLastPoint(PointF{});
    if (NotifyState(previous, Waiting)) {
        EndGesture();
    }
}

bool CPolygonShape::AcceptsPath(const Points& extended, bool isLast) {
    return ValidationHook.Accepts(extended, isLast) && !LastEdgeCrosses(extended) &&
           !(isLast && ClosingEdgeCrosses(extended));
}

bool CPolygonShape::AcceptsVertex(const Points& ring, size_t vertex) const {
    return !VertexCrosses(ring, vertex) && CClickPathShape::AcceptsVertex(ring, vertex);
}

/// By what the release lies beyond the last accepted position the polygon is tested shifted back, not on, and so a limit
/// is to be understood.
bool CPolygonShape::EndMove(const PointF& release) {
    const float dx = static_cast<float>(TruncateToInt(release.x - anchorPoint.x));
    const float dy = static_cast<float>(TruncateToInt(release.y - anchorPoint.y));
    const Points back = Moved(CopyPoints(), -dx, -dy);
    return std::none_of(back.begin(), back.end(), [&](const PointF& vertex) { return IsOutsideLimit(vertex); });
}

bool CPolygonShape::IsPoint(const Json::Value& element) const {
    return !element.isNull();
}

bool CPolygonShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [ring, view] = CopyFitted();
    return ring.size() >= FewestWritten && CopyTextUncounted(PointsText(name, Truncated(ring), view), buffer, size);
}

void CPolygonShape::GetShapePoints(Points& out) const {
    AppendPointsTo(out);
}

void CPolygonShape::PrepareToDraw() {
    FitToClientRect();
}

void CPolygonShape::DrawRest(const ShapeLook& look, IContainerGraphics& surface) {
    const bool closed = look.state != Waiting && look.state != Drawing;
    const Points closingEdge{look.points.back(), look.points.front()};
    if (closed) {
        DrawOpenPath(closingEdge, look.Thickness(), look.Colour(), surface);
    }
    if (closed && direction != NoDirection) {
        DrawOpenPath(closingEdge, look.Thickness(), look.Colour(), surface);
        DrawDirection(look, surface);
    }
    DrawShowName(look, surface, look.Colour());
    if (look.handles && closed) {
        DrawAdjustBoxes(look.points, surface, look.Colour());
    }
}

void CPolygonShape::DrawDirection(const ShapeLook& look, IContainerGraphics& surface) const {
    if (look.points.size() < 2) {
        return;
    }
    const ColorF colour = look.Colour();
    const CrossStroke mark = DrawDirectionMark(look.points[0], look.points[1], colour, surface);
    const auto arrow = [&](const PointF& tail, const PointF& tip) {
        DrawArrowHead(tail, tip, look.SelectedThickness(), colour, surface);
    };
    const auto point = [&](bool toLower) { toLower ? arrow(mark.upper, mark.lower) : arrow(mark.lower, mark.upper); };
    const auto outside = [&](const PointF& end) { return !InPolygon(look.points, end); };
    switch (direction) {
    case Inward:
        point(outside(mark.upper));
        break;
    case Outward:
        point(outside(mark.lower));
        break;
    case BothWays:
        point(true);
        point(false);
        break;
    default:
        break;
    }
}

} // namespace rulecanvas
