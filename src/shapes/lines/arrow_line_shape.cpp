#include "shape/drawing.h"
#include "shape/shape_factory.h"
#include "shapes/lines/path_line_shape.h"

#include <utility>

namespace rulecanvas {
namespace {

/// A direction of travel: a line, or with "XArrowLine" a path of up to 20 points, with an arrow head where `direction`
/// says.
class CArrowLineShape final : public CPathLineShape {
  public:
    CArrowLineShape() { beforePaint = BeforePaint::Fit; }

  private:
    /// Finishes only a path that whoever judges it accepts.
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override {
        if (hitLevel == Busy && PassesAsComplete()) {
            CPathLineShape::HandleRButtonEvent(event, hitLevel);
        }
    }

    bool PassesAsComplete() const {
        LockGuard guard(lock);
        return PassesValidation(figure.points, true);
    }

    /// Free in both directions, also for a horizon.
    bool MovePoints(float dx, float dy, const ClientRect& view) override {
        LearnViewSize(view); // as for a dragged point
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): other lines are bound to a horizon, an arrow is not
        return ChangeChecked([&] { return CGestureShape::MovePoints(dx, dy, view); });
    }

    bool DragPoint(int index, const PointF& to, const ClientRect& view) override {
        return ChangeChecked([&] { return CPathLineShape::DragPoint(index, to, view); });
    }
    void Draw(const ShapeLook& look, PaintPass& pass) override;

    /// Makes a change of the path, and takes it back when an owner refuses what came of it.
    template <class Change>
    bool ChangeChecked(Change change) {
        if (OwnersHooks() == nullptr) {
            return change();
        }
        Points before = figure.points;
        if (!change()) {
            return false;
        }
        const bool accepted =
            PassesValidation(figure.points, false) && OwnersHooks()->GeometryCheckHook.Accepts(figure.points);
        if (!accepted) {
            figure.points = std::move(before);
        }
        return accepted;
    }
};

const bool registered = Register<CArrowLineShape>("ArrowLineShape");

constexpr int HeadAtUpperEnd = 3;
constexpr int HeadAtLowerEnd = 4;
constexpr int HeadOnFirstSegment = 5;

/// Directions 3 and 4 name an end of the path by its place on the screen, which the last segment alone decides; a level
/// one counts as falling.
void DrawHead(const ShapeLook& look, IContainerGraphics& surface) {
    const Points& path = look.Path();
    const PointF& beforeLast = path[path.size() - 2];
    const PointF& last = path.back();
    const bool rising = beforeLast.y > last.y;
    const auto draw = [&](const PointF& tail, const PointF& tip) {
        DrawArrowHead(tail, tip, look.Thickness(), look.Colour(), surface);
    };
    switch (look.style->direction) {
    case HeadOnFirstSegment:
        return draw(path[0], path[1]);
    case HeadAtUpperEnd:
        return rising ? draw(beforeLast, last) : draw(path[1], path[0]);
    case HeadAtLowerEnd:
        return rising ? draw(path[1], path[0]) : draw(beforeLast, last);
    default:
        return;
    }
}

} // namespace

void CArrowLineShape::Draw(const ShapeLook& look, PaintPass& pass) {
    const Points& path = look.Path();
    if (path.empty()) {
        return;
    }
    if (look.state == Drawing && look.PointerInView()) {
        DrawSegment(path.back(), look.figure.lastPoint, look.Thickness(), look.Colour(), pass.surface);
    }
    DrawOpenPath(path, look.Thickness(), look.Colour(), pass.surface);
    if (path.size() > 1) {
        DrawHead(look, pass.surface);
    }
}

} // namespace rulecanvas
