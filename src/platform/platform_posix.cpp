#include "platform/platform.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <thread>

namespace rulecanvas::platform {
namespace {

std::recursive_mutex& MutexIn(unsigned char* native) {
    return *std::launder(reinterpret_cast<std::recursive_mutex*>(native));
}

} // namespace

ContainerMutex::ContainerMutex() {
    static_assert(sizeof(std::recursive_mutex) <= sizeof(native));
    new (native) std::recursive_mutex;
}

ContainerMutex::~ContainerMutex() {
    MutexIn(native).~recursive_mutex();
}

void ContainerMutex::lock() {
    MutexIn(native).lock();
}

void ContainerMutex::unlock() {
    MutexIn(native).unlock();
}

void Pause(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void DebugOutput(const char* /*text*/) {}

bool HasEnvironment(const char* variable, const char* value) {
    const char* found = std::getenv(variable);
    return found != nullptr && std::strcmp(found, value) == 0;
}

void WriteTrace(const char* line) {
    std::fprintf(stderr, "%s\n", line);
}

uint32_t IssueIdentity(const void* /*object*/) {
    static std::atomic<uint32_t> issued{0};
    return ++issued;
}

} // namespace rulecanvas::platform
