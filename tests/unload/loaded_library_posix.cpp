#include "loaded_library.h"

#include <dlfcn.h>

namespace rulecanvas::test {

LoadedLibrary::LoadedLibrary(const char* path) : library(dlopen(path, RTLD_NOW)) {}

LoadedLibrary::~LoadedLibrary() {
    dlclose(library);
}

bool LoadedLibrary::IsInMemory(const char* path) {
    void* found = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    if (found != nullptr) {
        dlclose(found); // the look counts as a load of its own
    }
    return found != nullptr;
}

void* LoadedLibrary::Find(const char* function) const {
    return dlsym(library, function);
}

} // namespace rulecanvas::test
