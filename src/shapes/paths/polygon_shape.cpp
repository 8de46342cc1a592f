#include "shape/drawing.h"
#include "shape/point_json.h"
#include "shape/shape_factory.h"
#include "shapes/paths/click_path_shape.h"

#include <algorithm>

namespace rulecanvas {
namespace {

enum class EdgePress { Ignored, InsertsVertex };

/// A closed polygon, drawn by clicking its vertices.
///
/// Edges that share no vertex never touch, whatever is drawn and dragged; only a configuration or an inserted vertex can
/// bring in others. A drawing that its closing edge would cross is thrown away by the right button. The direction shows
/// as arrows across the first edge.
class CPolygonShape final : public CClickPathShape {
  public:
    explicit CPolygonShape(EdgePress onEdge) : edgePress(onEdge) { beforePaint = BeforePaint::Fit; }

    bool RestartDrawing() override {
        selected = true;
        return CClickPathShape::RestartDrawing();
    }

    /// Appends the vertices.
    void GetShapePoints(Points& out) const override {
        LockGuard guard(lock);
        out.insert(out.end(), figure.points.begin(), figure.points.end());
    }

  private:
    /// The test shifts the polygon back, not on, by what the release lies beyond the last accepted position.
    Outcome EndMove(const PointerEvent& release) override {
        const auto dx = static_cast<float>(TruncateToInt(release.position.x - figure.anchorPoint.x));
        const auto dy = static_cast<float>(TruncateToInt(release.position.y - figure.anchorPoint.y));
        const auto isOutside = [&](const PointF& vertex) { return IsOutsideLimit(Shifted(vertex, -dx, -dy)); };
        return std::any_of(figure.points.begin(), figure.points.end(), isOutside) ? Outcome{} : Finish();
    }

    /// A move keeps every edge apart from the others but for the rounding of fractions of a pixel, which can bring a
    /// vertex onto an edge.
    bool MovePoints(float dx, float dy, const ClientRect& view) override {
        if (ShiftsExactly(figure.points, dx, dy) || !IsSound()) {
            return CClickPathShape::MovePoints(dx, dy, view);
        }
        Points before = figure.points;
        if (CClickPathShape::MovePoints(dx, dy, view) && IsSound()) {
            return true;
        }
        figure.points = std::move(before);
        return false;
    }

    bool IsOnOutline(const PointF& press) const override { return OnRing(figure.points, press); }
    bool HasInside() const override { return true; }
    /// A polygon that takes new vertices spends every right press on that: it is not deleted by one.
    bool HandleRightPress(const PointF& press) override;
    bool OfferFinish() override;
    bool AcceptsLastPoint(bool isLast) const override {
        return PassesValidation(figure.points, isLast) && !LastEdgeCrosses(figure.points) &&
               !(isLast && ClosingEdgeCrosses(figure.points));
    }

    bool AcceptsVertex(size_t vertex) const override {
        return !VertexCrosses(figure.points, vertex) && CClickPathShape::AcceptsVertex(vertex);
    }
    bool IsPoint(const Json::Value& element) const override { return !element.isNull(); }
    Json::Value WriteGeometry() const override {
        constexpr size_t fewest = 3;
        return figure.points.size() < fewest ? Json::Value() : WritePoints(Truncated(figure.points), figure.fitted);
    }
    CopyRule RuleOfCopying() const override { return CopyRule::ZeroUncounted; }
    void DrawRest(const ShapeLook& look, IContainerGraphics& surface) override;

    bool IsSound() const { return !RingCrosses(figure.points) && IsConvexEnough(); }

    const EdgePress edgePress;
};

const bool registered = Register<CPolygonShape, EdgePress::Ignored>("Polygon") &&
                        Register<CPolygonShape, EdgePress::InsertsVertex>("VirablePolygon");

enum DrawnDirection { NoDirection = -1, Inward = 0, Outward = 1, BothWays = 2 };

void DrawDirection(const ShapeLook& look, IContainerGraphics& surface) {
    const Points& ring = look.Path();
    if (ring.size() < 2) {
        return;
    }
    const ColorF& colour = look.Colour();
    const CrossStroke mark = DrawDirectionMark(ring[0], ring[1], colour, surface);
    const auto point = [&](bool toLower) {
        const PointF& tail = toLower ? mark.upper : mark.lower;
        const PointF& tip = toLower ? mark.lower : mark.upper;
        DrawArrowHead(tail, tip, look.SelectedThickness(), colour, surface);
    };
    switch (look.style->direction) {
    case Inward:
        return point(!InPolygon(ring, mark.upper));
    case Outward:
        return point(!InPolygon(ring, mark.lower));
    case BothWays:
        point(true);
        return point(false);
    default:
        return;
    }
}

} // namespace

bool CPolygonShape::HandleRightPress(const PointF& press) {
    if (edgePress == EdgePress::Ignored) {
        return true;
    }
    Take(nullptr, [&]() -> Outcome {
        Points& ring = figure.points;
        const int count = static_cast<int>(ring.size());
        if (state != Complete || count < minPtNum || count >= maxPtNum) {
            return {};
        }
        for (size_t edge = 0; edge < ring.size(); ++edge) {
            const size_t second = (edge + 1) % ring.size();
            if (NearSegment(ring[edge], ring[second], press)) {
                ring.insert(ring.begin() + static_cast<std::ptrdiff_t>(second), press);
                MarkClaimStale();
                break;
            }
        }
        return {};
    });
    return false;
}

/// Offering the right button's finish is where a drawing that cannot be closed ends: nothing the user could click next
/// would be sure to save it, so it starts over.
bool CPolygonShape::OfferFinish() {
    bool closes = true;
    Take(nullptr, [&]() -> Outcome {
        closes = !ClosingEdgeCrosses(figure.points);
        if (closes) {
            return {};
        }
        Forget();
        figure.lastPoint = PointF{};
        return {Waiting, effects::Finish};
    });
    return closes;
}

void CPolygonShape::DrawRest(const ShapeLook& look, IContainerGraphics& surface) {
    const Points& ring = look.Path();
    const bool closed = look.state != Waiting && look.state != Drawing;
    const auto drawClosingEdge = [&] {
        DrawSegment(ring.back(), ring.front(), look.Thickness(), look.Colour(), surface);
    };
    if (closed) {
        drawClosingEdge();
    }
    if (closed && look.style->direction != NoDirection) {
        drawClosingEdge();
        DrawDirection(look, surface);
    }
    DrawShowName(look, surface);
    if (look.handles && closed) {
        DrawAdjustBoxes(ring, surface, look.Colour());
    }
}

} // namespace rulecanvas
