#include "container/bounds_table.h"

namespace rulecanvas {
namespace {

/// Bounds that are looked at together: only when one of them holds the point each is looked at alone.
constexpr size_t BlockSize = 64;

} // namespace

void BoundsTable::Resize(size_t count) {
    for (std::vector<float>* column : {&left, &top, &right, &bottom}) {
        column->resize(count);
    }
}

void BoundsTable::Set(size_t place, const Claim& claim) {
    left[place] = claim.left;
    top[place] = claim.top;
    right[place] = claim.right;
    bottom[place] = claim.bottom;
}

bool BoundsTable::Holds(size_t place, const PointF& point) const {
    return left[place] <= point.x && point.x <= right[place] && top[place] <= point.y && point.y <= bottom[place];
}

void BoundsTable::Find(const PointF& point, std::vector<uint32_t>& places) const {
    const size_t count = left.size();
    for (size_t block = 0; block < count; block += BlockSize) {
        const size_t end = block + BlockSize < count ? block + BlockSize : count;
        int any = 0;
        // Without a branch, so that the compiler compares several at once.
        for (size_t i = block; i < end; ++i) {
            any |= static_cast<int>(left[i] <= point.x) & static_cast<int>(point.x <= right[i]) &
                   static_cast<int>(top[i] <= point.y) & static_cast<int>(point.y <= bottom[i]);
        }
        for (size_t i = block; any != 0 && i < end; ++i) {
            if (Holds(i, point)) {
                places.push_back(static_cast<uint32_t>(i));
            }
        }
    }
}

} // namespace rulecanvas
