#pragma once

#include "shapes/paths/click_path_shape.h"

namespace rulecanvas {

/// An open path, drawn by clicking its points. It is drawn open, also when its mode word keeps it convex.
class CBrokenLineShape final : public CClickPathShape {
  public:
    CBrokenLineShape();

    /// A line that may be deleted may be so in the middle of a drag, too.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;

  protected:
    Outcome StartEditing(const PointerEvent& press, int hitLevel) override;
    Outcome MoveTo(const PointerEvent& position) override;
    Outcome EndMove(const PointerEvent& release) override;
    bool IsOnOutline(const PointF& press) const override;
    bool HasInside() const override { return false; }
    bool HandleRightPress(const PointF& press) override;
    bool IsPoint(const Json::Value& element) const override { return element.isArray(); }
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    CopyRule RuleOfCopying() const override { return CopyRule::Line; }
    Claim CompleteClaim() const override;
    void DrawRest(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    bool Follow(const PointerEvent& position);
};

} // namespace rulecanvas
