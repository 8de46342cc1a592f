#include "platform/platform.h"

#include <windows.h>

#include <atomic>
#include <cstring>
#include <string>

namespace rulecanvas::platform {
namespace {

HANDLE& HandleIn(unsigned char* native) {
    return *reinterpret_cast<HANDLE*>(native);
}

} // namespace

ContainerMutex::ContainerMutex() {
    HandleIn(native) = CreateMutexA(nullptr, FALSE, nullptr);
}

ContainerMutex::~ContainerMutex() {
    if (HandleIn(native) != nullptr) {
        CloseHandle(HandleIn(native));
    }
}

void ContainerMutex::lock() {
    if (HandleIn(native) != nullptr) {
        WaitForSingleObject(HandleIn(native), INFINITE);
    }
}

void ContainerMutex::unlock() {
    if (HandleIn(native) != nullptr) {
        ReleaseMutex(HandleIn(native));
    }
}

void Pause(int milliseconds) {
    Sleep(static_cast<DWORD>(milliseconds));
}

void DebugOutput(const char* text) {
    OutputDebugStringA(text);
}

bool HasEnvironment(const char* variable, const char* value) {
    char found[64];
    const DWORD length = GetEnvironmentVariableA(variable, found, sizeof(found));
    return length > 0 && length < sizeof(found) && std::strcmp(found, value) == 0;
}

void WriteTrace(const char* line) {
    OutputDebugStringA((std::string(line) + "\n").c_str());
}

uint32_t IssueIdentity(const void* object) {
    if constexpr (sizeof(object) == sizeof(uint32_t)) {
        return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(object));
    } else {
        static std::atomic<uint32_t> issued{0};
        return ++issued;
    }
}

} // namespace rulecanvas::platform
