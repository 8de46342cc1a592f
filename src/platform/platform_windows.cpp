#include "platform/platform.h"

#include <windows.h>

namespace rulecanvas::platform {

struct Mutex::State {
    HANDLE handle = CreateMutexA(nullptr, FALSE, nullptr);
};

Mutex::Mutex() : state(std::make_unique<State>()) {}

Mutex::~Mutex() {
    if (state->handle != nullptr) {
        CloseHandle(state->handle);
    }
}

bool Mutex::Lock() {
    return state->handle != nullptr && WaitForSingleObject(state->handle, INFINITE) != WAIT_FAILED;
}

bool Mutex::Unlock() {
    return state->handle == nullptr || ReleaseMutex(state->handle) != FALSE;
}

void Pause(int milliseconds) {
    Sleep(static_cast<DWORD>(milliseconds));
}

void DebugOutput(const char* text) {
    OutputDebugStringA(text);
}

uint32_t IssueIdentity(const void* object) {
    static_assert(sizeof(object) == sizeof(uint32_t), "an address is an identity only where it fits");
    return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(object));
}

} // namespace rulecanvas::platform
