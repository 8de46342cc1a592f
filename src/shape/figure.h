#pragma once

#include "geometry/rectangles.h"

namespace rulecanvas {

/// The geometry of a shape at one moment: values alone, in pixels of its view.
struct Figure {
    Points points;
    /// Where the mouse was last while the figure is edited.
    PointF lastPoint{};
    /// Where a gesture began, or what it holds on to.
    PointF anchorPoint{};
    /// Index of the point under the last press, negative for none.
    int grabbedIndex = -1;
    /// The size of the view that the points are fitted to; 0 while it is unknown.
    ViewSize fitted;
    /// The client rectangle that the points are fitted to.
    ClientRect clientRect{};

    /// Takes over the size of a view, the points staying where they are.
    void Adopt(const ClientRect& view);
    /// Rescales the points to a view of another size. A view without a size, as that of a minimised window, leaves them.
    void FitTo(const ClientRect& view) {
        if (!IsFittedTo(view)) {
            Rescale(view);
        }
    }

  private:
    bool IsFittedTo(const ClientRect& view) const {
        return view.left == 0 && view.top == 0 && view.right == fitted.width && view.bottom == fitted.height &&
               view.right == clientRect.right && view.bottom == clientRect.bottom && clientRect.left == 0 &&
               clientRect.top == 0;
    }
    void Rescale(const ClientRect& view);
};

} // namespace rulecanvas
