#include "platform/platform.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

namespace rulecanvas::platform {

struct Mutex::State {
    std::recursive_mutex mutex;
};

Mutex::Mutex() : state(std::make_unique<State>()) {}

Mutex::~Mutex() = default;

bool Mutex::Lock() {
    state->mutex.lock();
    return true;
}

bool Mutex::Unlock() {
    state->mutex.unlock();
    return true;
}

void Pause(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void DebugOutput(const char* /*text*/) {}

uint32_t IssueIdentity(const void* /*object*/) {
    static std::atomic<uint32_t> issued{0};
    return ++issued;
}

} // namespace rulecanvas::platform
