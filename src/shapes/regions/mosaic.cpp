#include "shapes/regions/mosaic.h"

#include <algorithm>

namespace rulecanvas {
namespace {

constexpr ColorF Black{128.0F, 0.0F, 0.0F, 0.0F};
constexpr ColorF White{128.0F, 255.0F, 255.0F, 255.0F};

/// Fills one row of cells; the last one is narrower when the width is no multiple of the cell.
void FillRow(int top, int bottom, int width, int cellSize, bool black, IContainerGraphics& surface) {
    for (int left = 0; left < width; left += std::min(cellSize, width - left)) {
        const int right = left + std::min(cellSize, width - left);
        const PointF topLeft{static_cast<float>(left), static_cast<float>(top)};
        const PointF bottomRight{static_cast<float>(right), static_cast<float>(bottom)};
        surface.FillRectangle(&topLeft, &bottomRight, black ? &Black : &White);
        black = !black;
    }
}

} // namespace

void DrawMosaic(const PointF& topLeft, const PointF& bottomRight, int cellSize, const ViewSize& view,
                IContainerGraphics& surface) {
    if (cellSize <= 0) {
        return;
    }
    const int width = std::min(TruncateToInt(static_cast<double>(bottomRight.x) - topLeft.x), view.width);
    const int height = std::min(TruncateToInt(static_cast<double>(bottomRight.y) - topLeft.y), view.height);
    surface.BeginLayer();
    surface.SetLayerSize(width, height);
    bool black = true;
    for (int top = 0; top < height; top += std::min(cellSize, height - top)) {
        FillRow(top, top + std::min(cellSize, height - top), width, cellSize, black, surface);
        black = !black;
    }
    surface.EndLayer(TruncateToInt(topLeft.x), TruncateToInt(topLeft.y));
}

} // namespace rulecanvas
