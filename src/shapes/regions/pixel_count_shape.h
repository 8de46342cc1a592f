#pragma once

#include "shapes/regions/rectangle_shape.h"

namespace rulecanvas {

/// A rectangle that measures itself in pixels of the video, not of the screen, and shows the result in its middle.
///
/// Its configuration is that size. A configured rectangle gets its corners, in the middle of the view, by the first
/// paint that knows how large view and video are; one that is drawn or resized is measured by every paint.
class CPixelCountShape : public CRectangleShape {
  public:
    CPixelCountShape();

    bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    void ClearShape() override;

  protected:
    void PrepareToDraw() override;
    void Draw(const ShapeLook& look, IContainerGraphics& surface) override;

  private:
    bool LoadSize(const char* shapeData);
    void TakeOverVideoSize();
    void Place(const ViewSize& display);
    void Measure(const ViewSize& display);

    std::atomic<int> pixelWidth{0};
    std::atomic<int> pixelHeight{0};
    /// The video's resolution as it was when a paint first knew it; used by the paint alone.
    ViewSize video;
    /// The configured size waits for its corners.
    std::atomic<bool> placePending{false};
};

} // namespace rulecanvas
