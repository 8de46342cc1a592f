#include "shape/shared_style.h"

#include <array>
#include <mutex>

namespace rulecanvas {

/// Keeps the styles that were asked for last. Few: a host has a handful of looks, and a search goes through all.
StylePtr Shared(const ShapeStyle& style) {
    static std::mutex mutex;
    static std::array<StylePtr, 8> recent;
    static size_t next = 0;
    const std::lock_guard guard(mutex);
    for (const StylePtr& known : recent) {
        if (known != nullptr && *known == style) {
            return known;
        }
    }
    return recent[next++ % recent.size()] = std::make_shared<const ShapeStyle>(style);
}

} // namespace rulecanvas
