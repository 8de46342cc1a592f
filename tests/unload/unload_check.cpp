// Unloads the library, named by the first argument, while a container lives and its shape is being drawn: the library must
// end them itself, without a word to the host, and leave nothing behind. Then the same again.

#include "rulecanvas/rulecanvas.h"

#include <cstdio>
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace rulecanvas::test {
namespace {

#ifdef _WIN32
using Library = HMODULE;
constexpr auto Open = &LoadLibraryA;
constexpr auto Close = &FreeLibrary;
constexpr auto Find = &GetProcAddress;
#else
using Library = void*;
constexpr auto Close = &dlclose;
constexpr auto Find = &dlsym;

Library Open(const char* path) {
    return dlopen(path, RTLD_NOW);
}
#endif

bool IsInMemory(const char* path) {
#ifdef _WIN32
    return GetModuleHandleA(path) != nullptr;
#else
    void* const found = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    return found != nullptr && dlclose(found) == 0; // the look counts as a load of its own
#endif
}

int captures = 0;

Bool32 RULECANVAS_THISCALL CountCapture(void* /*target*/, Bool32 /*take*/) {
    ++captures;
    return 1;
}

#define FIND(function)                                                                                                 \
    const auto function =                                                                                              \
        reinterpret_cast<decltype(&rulecanvas::function)>(reinterpret_cast<void*>(Find(library, #function)))

void StartDrawing(Library library) {
    FIND(CreateVideoAnalyseContainer);
    FIND(EnableVideoAnalyseContainer);
    FIND(SetCtrlContainerWinMouseCaptureDelegate);
    FIND(CreateMainVideoAnalyseShape);
    FIND(GetContainerWinMouseEventHandler);
    const ContainerHandle container = CreateVideoAnalyseContainer(nullptr);
    const CDelegate capture{&captures, reinterpret_cast<void*>(&CountCapture)};
    EnableVideoAnalyseContainer(container, 1);
    SetCtrlContainerWinMouseCaptureDelegate(container, &capture);
    CreateMainVideoAnalyseShape(container, 1, "", "SpotShape", "", "", ""); // it gives the capture back at its end
    CreateMainVideoAnalyseShape(container, 2, "", "Rect", "rule", "", "");
    ContainerHandlerHolder mouse{nullptr, nullptr};
    GetContainerWinMouseEventHandler(container, &mouse);
    const ContainerMouseEvent press{RULECANVAS_MOUSE_LEFT_DOWN, 2, 0, 0, 0, 0, 0};
    mouse.handler->table->invoke(mouse.handler, 0, reinterpret_cast<uintptr_t>(&press));
    mouse.handler->table->destroy(mouse.handler, 1);
}

bool Run(const char* path) {
    captures = 0;
    Library library = Open(path);
    if (library == nullptr) {
        return false;
    }
    StartDrawing(library);
    const bool wasThere = IsInMemory(path);
    Close(library);
    return wasThere && captures == 1 && !IsInMemory(path);
}

} // namespace
} // namespace rulecanvas::test

int main(int argc, char** argv) {
    using rulecanvas::test::Run;
    const bool passed = argc == 2 && Run(argv[1]) && Run(argv[1]);
    std::puts(passed ? "unloaded twice" : "failed");
    return passed ? 0 : 1;
}
