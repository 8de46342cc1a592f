#include "loaded_library.h"

#include <windows.h>

namespace rulecanvas::test {

LoadedLibrary::LoadedLibrary(const char* path) : library(LoadLibraryA(path)) {}

LoadedLibrary::~LoadedLibrary() {
    FreeLibrary(static_cast<HMODULE>(library));
}

bool LoadedLibrary::IsInMemory(const char* path) {
    return GetModuleHandleA(path) != nullptr;
}

void* LoadedLibrary::Find(const char* function) const {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), function));
}

} // namespace rulecanvas::test
