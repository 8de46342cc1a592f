#pragma once

#include <rulecanvas_kit/rule.hpp>

#include <cstdint>
#include <vector>

namespace rule_editor {

using rulecanvas::kit::Size;

/// A picture: rows from the top, a pixel is 0x00RRGGBB.
struct Frame {
    Size size;
    std::vector<uint32_t> pixels;

    void Resize(Size newSize) {
        size = newSize;
        pixels.resize(static_cast<size_t>(newSize.width) * static_cast<size_t>(newSize.height));
    }
    uint32_t* Row(int y) { return pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(size.width); }
};

} // namespace rule_editor
