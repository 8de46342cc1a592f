#include "support.h"

namespace rulecanvas {

/// On 64-bit Windows the stack is always aligned to 16 bytes.
void RunOnEveryStack(void(__cdecl* run)()) {
    run();
}

} // namespace rulecanvas
