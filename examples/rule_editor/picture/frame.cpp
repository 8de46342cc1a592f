#include "picture/frame.hpp"

#include <algorithm>

namespace rule_editor {

namespace {

constexpr int FRACTION_BITS = 8;
constexpr uint32_t ONE = 1U << FRACTION_BITS;

/* Where a target coordinate falls between two source ones. */
struct Sample {
    int first;
    int second;
    uint32_t weight; /* Of `second`, out of ONE. */
};

std::vector<Sample> samples(int sourceLength, int targetLength) {
    std::vector<Sample> result(static_cast<size_t>(targetLength));
    for (int i = 0; i < targetLength; ++i) {
        /* Centres of pixels are matched, hence the halves. */
        const int64_t position = ((2 * static_cast<int64_t>(i) + 1) * sourceLength * ONE / targetLength - ONE) / 2;
        const int64_t inside = std::clamp<int64_t>(position, 0, static_cast<int64_t>(sourceLength - 1) * ONE);
        const int first = static_cast<int>(inside >> FRACTION_BITS);
        result[static_cast<size_t>(i)] = {first, std::min(first + 1, sourceLength - 1),
                                          static_cast<uint32_t>(inside) & (ONE - 1)};
    }
    return result;
}

/* Red and blue are mixed in one multiplication: they lie 16 bits apart. */
uint32_t mix(uint32_t a, uint32_t b, uint32_t weightOfB) {
    constexpr uint32_t RED_BLUE = 0x00FF00FFU;
    constexpr uint32_t GREEN = 0x0000FF00U;
    const uint32_t weightOfA = ONE - weightOfB;
    const uint32_t redBlue = ((a & RED_BLUE) * weightOfA + (b & RED_BLUE) * weightOfB) >> FRACTION_BITS;
    const uint32_t green = ((a & GREEN) * weightOfA + (b & GREEN) * weightOfB) >> FRACTION_BITS;
    return (redBlue & RED_BLUE) | (green & GREEN);
}

} // namespace

void Frame::resize(Size newSize) {
    size = newSize;
    pixels.resize(static_cast<size_t>(newSize.width) * static_cast<size_t>(newSize.height));
}

Frame scaled(const Frame& source, Size size) {
    if (source.size == size) {
        return source;
    }
    Frame target;
    target.resize(size);
    const std::vector<Sample> columns = samples(source.size.width, size.width);
    const std::vector<Sample> rows = samples(source.size.height, size.height);
    for (int y = 0; y < size.height; ++y) {
        const Sample& row = rows[static_cast<size_t>(y)];
        const uint32_t* const upper = source.row(row.first);
        const uint32_t* const lower = source.row(row.second);
        uint32_t* out = target.row(y);
        for (const Sample& column : columns) {
            const uint32_t above = mix(upper[column.first], upper[column.second], column.weight);
            const uint32_t below = mix(lower[column.first], lower[column.second], column.weight);
            *out++ = mix(above, below, row.weight);
        }
    }
    return target;
}

Frame cropped(const Frame& source, int x, int y, Size size) {
    Frame part;
    part.resize(size);
    for (int line = 0; line < size.height; ++line) {
        std::copy_n(source.row(y + line) + x, size.width, part.row(line));
    }
    return part;
}

} // namespace rule_editor
