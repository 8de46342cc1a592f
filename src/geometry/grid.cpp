#include "geometry/grid.h"

namespace rulecanvas {
namespace {

float AxisToPixels(double gridValue, int extent) {
    return static_cast<float>(TruncateToInt(extent * gridValue / GridSpan + 0.5));
}

int AxisToGrid(float pixel, int extent) {
    return extent == 0 ? 0 : TruncateToInt(static_cast<double>(pixel) * GridSpan / extent + 0.5);
}

} // namespace

PointF ToPixels(double gridX, double gridY, const ViewSize& view) {
    return PointF{AxisToPixels(gridX, view.width), AxisToPixels(gridY, view.height)};
}

GridPoint ToGrid(const PointF& pixels, const ViewSize& view) {
    return GridPoint{AxisToGrid(pixels.x, view.width), AxisToGrid(pixels.y, view.height)};
}

} // namespace rulecanvas
