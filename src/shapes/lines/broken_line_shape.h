#pragma once

#include "shape/click_path_shape.h"

namespace rulecanvas {

/// An open path, drawn by clicking its points. It is drawn open, also when its mode word keeps it convex.
class CBrokenLineShape final : public CClickPathShape {
  public:
    CBrokenLineShape();

    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    /// A line that may be deleted may be so in the middle of a drag, too.
    CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;

  protected:
    void StartEditing(const PointF& press, int hitLevel) override;
    bool IsOnOutline(const Points& path, const PointF& press) const override;
    bool HandleRightPress(const PointF& press) override;
    bool MoveTo(const PointF& position) override;
    bool EndMove(const PointF& release) override;
    bool IsPoint(const Json::Value& element) const override;
    void DrawRest(const ShapeLook& look, IContainerGraphics& surface) override;
};

} // namespace rulecanvas
