/// A page runs the core on one thread and paints beside no other: nothing to lock and nobody to wait for.
#include "platform/platform.h"

#include <emscripten/console.h>

namespace rulecanvas::platform {

ContainerMutex::ContainerMutex() = default;

/// Mentions the room that nothing needs here, so that no compiler calls it forgotten.
ContainerMutex::~ContainerMutex() {
    static_cast<void>(native);
}

void ContainerMutex::lock() {}

void ContainerMutex::unlock() {}

void Pause(int /*milliseconds*/) {}

void DebugOutput(const char* /*text*/) {}

bool HasEnvironment(const char* /*variable*/, const char* /*value*/) {
    return false;
}

void WriteTrace(const char* line) {
    emscripten_console_log(line);
}

uint32_t IssueIdentity(const void* /*object*/) {
    static uint32_t issued = 0;
    return ++issued;
}

} // namespace rulecanvas::platform
