/// A page runs the core on one thread and paints beside no other: nothing to lock and nobody to wait for.
#include "platform/platform.h"

namespace rulecanvas::platform {

struct Mutex::State {};

Mutex::Mutex() = default;

Mutex::~Mutex() = default;

bool Mutex::Lock() {
    return true;
}

bool Mutex::Unlock() {
    return true;
}

void Pause(int /*milliseconds*/) {}

void DebugOutput(const char* /*text*/) {}

uint32_t IssueIdentity(const void* /*object*/) {
    static uint32_t issued = 0;
    return ++issued;
}

} // namespace rulecanvas::platform
