#pragma once

#include "shapes/regions/rectangle_shape.h"

namespace rulecanvas {

/// A rectangle that measures itself in pixels of the video, not of the screen, and shows the result in its middle.
///
/// Its configuration is that size. A configured rectangle gets its corners, in the middle of the view, by the first
/// paint that knows how large view and video are; one that is drawn or resized is measured by every paint.
class CPixelCountShape final : public CRectangleShape {
  public:
    CPixelCountShape();

  protected:
    void Forget() override;
    void ReadWord(const char* /*option*/) override {}
    Refused Load(Loading& loading) override;
    Json::Value WriteGeometry(const Points& points, const ViewSize& view) const override;
    bool WritesPlaces() const override { return false; }
    bool FitToPaint(const PaintPass& pass) override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

  private:
    void Place(const ClientRect& painted, const ClientRect& viewZero);
    void Measure();

    int pixelWidth = 0;
    int pixelHeight = 0;
    /// The video's resolution as it was when a paint first knew it.
    ViewSize video;
    /// The configured size waits for its corners.
    bool placePending = false;
};

} // namespace rulecanvas
