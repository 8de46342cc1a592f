#include "shape/figure.h"

namespace rulecanvas {

void Figure::Adopt(const ClientRect& view) {
    fitted = SizeOf(view);
    clientRect.right = fitted.width;
    clientRect.bottom = fitted.height;
}

/// By the right and bottom edges, not by width and height: every view is taken to start at its origin.
void Figure::Rescale(const ClientRect& view) {
    if (!fitted.Known() || view.right <= 0 || view.bottom <= 0 || !SizeOf(view).Known()) {
        return;
    }
    const double scaleX = static_cast<double>(view.right) / fitted.width;
    const double scaleY = static_cast<double>(view.bottom) / fitted.height;
    if (scaleX != 1.0 || scaleY != 1.0) {
        for (PointF& point : points) {
            point.x = static_cast<float>(point.x * scaleX);
            point.y = static_cast<float>(point.y * scaleY);
        }
    }
    fitted = SizeOf(view);
    clientRect = view;
}

} // namespace rulecanvas
