#include <rulecanvas/rulecanvas.h>

constexpr bool Same(const char* a, const char* b) {
    return *a == *b && (*a == '\0' || Same(a + 1, b + 1));
}
static_assert(Same(RULECANVAS_VERSION, EXPECTED_VERSION), "the headers are of another version than the package");
