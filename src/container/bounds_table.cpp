#include "container/bounds_table.h"

#include <algorithm>
#include <cmath>

namespace rulecanvas {
void BoundsTable::Axis::Reset(float lowest, float highest, size_t figureCount) {
    begin = lowest;
    stripsPerPixel = highest > lowest ? static_cast<float>(StripCount) / (highest - lowest) : 0.0F;
    for (std::vector<uint64_t>& strip : strips) {
        strip.assign((figureCount + WordBits - 1) / WordBits, 0);
    }
}

size_t BoundsTable::Axis::IndexOf(float coordinate) const {
    const float strip = (coordinate - begin) * stripsPerPixel;
    constexpr auto last = static_cast<float>(StripCount - 1);
    return strip > 0.0F ? static_cast<size_t>(std::min(strip, last)) : 0; // also what is no number
}

void BoundsTable::Axis::Mark(size_t place, float from, float to, bool reached) {
    const uint64_t bit = uint64_t{1} << (place % WordBits);
    const size_t last = IndexOf(to);
    for (size_t strip = IndexOf(from); strip <= last; ++strip) {
        uint64_t& word = strips[strip][place / WordBits];
        word = reached ? word | bit : word & ~bit;
    }
}

void BoundsTable::Reset(const std::vector<Claim>& claims) {
    Claim all = Claim::Nowhere();
    for (const Claim& claim : claims) {
        if (std::isfinite(claim.left)) {
            all.left = std::min(all.left, claim.left);
            all.top = std::min(all.top, claim.top);
            all.right = std::max(all.right, claim.right);
            all.bottom = std::max(all.bottom, claim.bottom);
        }
    }
    bounds = claims;
    columns.Reset(all.left, all.right, claims.size());
    rows.Reset(all.top, all.bottom, claims.size());
    for (size_t place = 0; place < claims.size(); ++place) {
        Mark(place, true);
    }
}

void BoundsTable::Set(size_t place, const Claim& claim) {
    Mark(place, false);
    bounds[place] = claim;
    Mark(place, true);
}

void BoundsTable::Mark(size_t place, bool reached) {
    const Claim& claim = bounds[place];
    columns.Mark(place, claim.left, claim.right, reached);
    rows.Mark(place, claim.top, claim.bottom, reached);
}

void BoundsTable::Find(const PointF& point, std::vector<uint32_t>& places) const {
    const std::vector<uint64_t>& column = columns.StripAt(point.x);
    const std::vector<uint64_t>& row = rows.StripAt(point.y);
    for (size_t word = 0; word < column.size(); ++word) {
        for (uint64_t near = column[word] & row[word]; near != 0; near &= near - 1) {
            const size_t place = word * WordBits + static_cast<size_t>(__builtin_ctzll(near));
            if (bounds[place].Holds(point)) {
                places.push_back(static_cast<uint32_t>(place));
            }
        }
    }
}

} // namespace rulecanvas
