#pragma once

#include "geometry/segments.h"
#include "shape/gesture_shape.h"
#include "shape/text.h"

namespace rulecanvas {

/// A figure of many points that is drawn click by click, with a rubber line from the last point to the mouse, and
/// finished by the right button or by the last point allowed. Finished, it is moved by its inside and reshaped by its
/// vertices.
///
/// The mode word "Convex" keeps it from ever becoming concave. `anchorPoint` is the last point placed while it is
/// drawn, the last accepted mouse position while it is moved, and the place from which a vertex was dragged.
class CClickPathShape : public CGestureShape {
  public:
    CClickPathShape() {
        maxPtNum = LongestPath;
        minPtNum = 3;
        figure.lastPoint = PointF{-1.0F, -1.0F};
    }

    /// Offers to finish a drawing, to act on an edge of the finished figure, or to delete it.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel) override;

    /// A rectangle that gestures must end in; a negative left lifts the limit. For a figure that owns this one; none of
    /// this version does.
    void SetLimitRectangle(const ClientRect& limit) { m_recWnd = limit; }

  protected:
    Outcome StartDrawing(const PointerEvent& press) override;
    Outcome ContinueDrawing(const PointerEvent& press) override;
    Outcome DrawTo(const PointerEvent& position) override {
        figure.lastPoint = position.position;
        return {};
    }

    Outcome EndDrawing(const PointerEvent& /*release*/) override {
        return {std::nullopt, effects::HoldMouse}; // a host may have let go of the mouse with the button
    }
    int LevelAt(const PointF& press) override { return LevelOf(press, HasInside()); }
    Outcome EndAdjust(const PointerEvent& release) override {
        return IsOutsideLimit(release.position) ? Outcome{} : Finish();
    }
    bool TakesPoints(const Points& /*points*/) const override { return true; }
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override;

    virtual bool IsOnOutline(const PointF& press) const = 0;
    /// Whether a press inside the finished figure is a hit of its own.
    virtual bool HasInside() const = 0;
    /// What to do with a right press on the finished figure before the figure may be deleted by it. False: the press is
    /// used up.
    virtual bool HandleRightPress(const PointF& press) = 0;
    /// Asked, without the lock, when the right button could finish a drawing that has points enough. False: it may not.
    virtual bool OfferFinish() { return true; }
    /// Whether the path may grow by its last point; `isLast` when it is the last one allowed.
    virtual bool AcceptsLastPoint(bool /*isLast*/) const { return true; }
    /// Whether a finished figure may have the vertex where it is.
    virtual bool AcceptsVertex(size_t /*vertex*/) const { return IsConvexEnough(); }
    virtual bool IsPoint(const Json::Value& element) const = 0;
    /// Everything but the edges between consecutive points and the rubber line.
    virtual void DrawRest(const ShapeLook& look, IContainerGraphics& surface) = 0;

    void ReadWord(const char* option) override {
        convex = convex || IsWord(option, "Convex");
        enableRBtnDelete = enableRBtnDelete || IsWord(option, "EnableRBtnDelete");
    }

    Refused Load(Loading& loading) override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

    /// Claims a right press on the outline or inside; with the lock held.
    CVideoAnalyseShape* AnswerRightPress(const PointF& press, int& hitLevel);
    int LevelOf(const PointF& press, bool hasInside) const;
    bool IsConvexEnough() const { return !convex || IsConvex(figure.points); }
    bool IsOutsideLimit(const PointF& point) const { return m_recWnd.left >= 0 && !InRectangle(m_recWnd, point); }

  private:
    bool HasEnoughPoints() const {
        LockGuard guard(lock);
        return static_cast<int>(figure.points.size()) >= minPtNum;
    }

    bool convex = false;
    ClientRect m_recWnd = NoLimit;
};

} // namespace rulecanvas
