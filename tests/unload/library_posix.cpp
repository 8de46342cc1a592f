#include "library.h"

#include <dlfcn.h>

namespace rulecanvas::test {

void* OpenLibrary(const char* path) {
    return dlopen(path, RTLD_NOW);
}

void CloseLibrary(void* library) {
    dlclose(library);
}

void* FindFunction(void* library, const char* name) {
    return dlsym(library, name);
}

bool IsInMemory(const char* path) {
    void* found = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    if (found != nullptr) {
        dlclose(found); // the look counts as a load of its own
    }
    return found != nullptr;
}

} // namespace rulecanvas::test
