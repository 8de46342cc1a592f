#include "library.h"

#include <windows.h>

namespace rulecanvas::test {

void* OpenLibrary(const char* path) {
    return LoadLibraryA(path);
}

void CloseLibrary(void* library) {
    FreeLibrary(static_cast<HMODULE>(library));
}

void* FindFunction(void* library, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

bool IsInMemory(const char* path) {
    return GetModuleHandleA(path) != nullptr;
}

} // namespace rulecanvas::test
