#pragma once

#include "shape/types.h"

namespace rulecanvas {

/// The font of a shape's texts. Figures put a size of their own in when they draw.
struct FontStyle {
    ColorF fontColor{};
    float fontSize = 0.0F;
    const char* fontFace = "MS Sans Serif";
};

/// The look and the permissions of a shape, as its style text and the host set them.
struct ShapeStyle {
    ColorF selColor = OpaqueColour(255, 255, 0);
    ColorF unSelColor = OpaqueColour(0, 0, 255);
    FontStyle textStyle;
    /// Pixels.
    int lineThickness = 2;
    int unSelLineThickness = 2;
    int penStyle = 0;
    /// -1 to 5 from a style text; whatever the host passed from a call.
    int direction = -1;
    /// The direction last given by the host itself.
    int hostDirection = -1;
    /// Pixels of a cell of the mosaic.
    int mosaicSize = 8;
    bool mosaicEnable = false;
    bool canAdjust = true;
    bool canMove = true;
    /// A line with this style may bend.
    bool xArrowLine = false;
    /// For figures that fill their inside; none of this version does.
    bool isFill = false;
    ColorF fillColor = OpaqueColour(0, 0, 0);
};

bool operator==(const ShapeStyle& a, const ShapeStyle& b);

/// Takes the keys of a style text over, each only when its value has the right type; a text that is empty or no JSON
/// changes nothing. Parts of "mosaic" and of the colours are converted instead, and raise what the conversion raises.
void ReadStyle(const char* text, ShapeStyle& style);

} // namespace rulecanvas
