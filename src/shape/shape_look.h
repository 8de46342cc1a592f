#pragma once

#include "shape/types.h"

#include <string>

namespace rulecanvas {

/// A shape's figure and look at one moment, copied so that it can be drawn without holding the shape's lock.
struct ShapeLook {
    Points points;
    int state = Deleted;
    bool selected = false;
    bool handles = false;
    ColorF selColour{};
    ColorF unSelColour{};
    int selThickness = 0;
    int unSelThickness = 0;
    TextStyle textStyle{};
    std::string caption;
    PointF lastPoint{};
    PointF anchorPoint{};
    ViewSize size;
    ClientRect clientRect{};

    const ColorF& Colour() const { return selected ? selColour : unSelColour; }
    float Thickness() const { return static_cast<float>(selected ? selThickness : unSelThickness); }
    float SelectedThickness() const { return static_cast<float>(selThickness); }

    /// Whether `lastPoint` lies in the view, its borders included.
    bool PointerInView() const {
        return 0.0F <= lastPoint.x && lastPoint.x <= static_cast<float>(size.width) && 0.0F <= lastPoint.y &&
               lastPoint.y <= static_cast<float>(size.height);
    }

    /// The shape's font in the given colour and size.
    TextStyle Text(const ColorF& colour, float textSize) const {
        TextStyle style = textStyle;
        style.colour = colour;
        style.size = textSize;
        return style;
    }
};

} // namespace rulecanvas
