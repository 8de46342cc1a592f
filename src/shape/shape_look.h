#pragma once

#include "shape/figure.h"
#include "shape/shared_style.h"

#include <cstring>
#include <string>

namespace rulecanvas {

/// A shape's figure and look at one moment, copied so that it can be drawn without holding the shape's lock.
struct ShapeLook {
    Figure figure;
    StylePtr style;
    std::string caption;
    int state = 0;
    bool selected = false;
    bool handles = false;

    const Points& Path() const { return figure.points; }
    const ColorF& Colour() const { return selected ? style->selColor : style->unSelColor; }
    float Thickness() const { return static_cast<float>(selected ? style->lineThickness : style->unSelLineThickness); }
    float SelectedThickness() const { return static_cast<float>(style->lineThickness); }

    /// Whether `lastPoint` lies in the view, its borders included.
    bool PointerInView() const {
        return InRectangle(ClientRect{0, 0, figure.fitted.width, figure.fitted.height}, figure.lastPoint);
    }

    /// The shape's font in the given colour and size.
    TextStyle Text(const ColorF& colour, float textSize) const {
        TextStyle text{colour, textSize, {}};
        std::strncpy(text.face, style->textStyle.fontFace, sizeof(text.face) - 1);
        return text;
    }
};

} // namespace rulecanvas
