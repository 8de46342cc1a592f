#pragma once

#include <cstdint>
#include <vector>

namespace rule_editor {

struct Size {
    int width = 0;
    int height = 0;
};

inline bool operator==(Size a, Size b) {
    return a.width == b.width && a.height == b.height;
}
inline bool operator!=(Size a, Size b) {
    return !(a == b);
}

/* A picture: rows from the top, a pixel is 0x00RRGGBB. */
struct Frame {
    Size size;
    std::vector<uint32_t> pixels;

    void resize(Size newSize);
    uint32_t* row(int y) { return pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(size.width); }
    const uint32_t* row(int y) const {
        return pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(size.width);
    }
};

/* `source` stretched to `size` with bilinear interpolation. Neither may be empty. */
Frame scaled(const Frame& source, Size size);

/* The part of `source` that begins at (x, y). It must lie inside. */
Frame cropped(const Frame& source, int x, int y, Size size);

} // namespace rule_editor
