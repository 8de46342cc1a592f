#include "shape/shared_style.h"

#include <array>
#include <mutex>

namespace rulecanvas {
namespace {

/// The styles that were asked for last. Few: a host has a handful of looks, and a search goes through all.
class RecentStyles {
  public:
    StylePtr Find(const ShapeStyle& style) {
        const std::lock_guard<std::mutex> guard(mutex);
        for (const StylePtr& known : styles) {
            if (known != nullptr && *known == style) {
                return known;
            }
        }
        return styles[next++ % styles.size()] = std::make_shared<const ShapeStyle>(style);
    }

  private:
    std::mutex mutex;
    std::array<StylePtr, 8> styles;
    size_t next = 0;
};

} // namespace

StylePtr Shared(const ShapeStyle& style) {
    static RecentStyles recent;
    return recent.Find(style);
}

} // namespace rulecanvas
