// Loads and unloads libraries in the order of the arguments:
//
//     load_check RULECANVAS STEP...
//         +FILE, -FILE    load or free a library; "rulecanvas" stands for RULECANVAS, the library's path
//         refuse          let it refuse configurations; inside, each refusal is an exception
//         draw            leave it with a container whose shape is being drawn
//         gone            it has ended them without a word to the host, and nothing of it is left
//         throw           let the neighbour throw
//
// Exceptions must still end where they are caught.

#include "rulecanvas/rulecanvas.h"

#include <cstdio>
#include <map>
#include <string>
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace rulecanvas::test {
namespace {

/// Loading at run time, as each system does it.
struct Loader {
#ifdef _WIN32
    using Library = HMODULE;
    static Library Open(const char* path) {
        return LoadLibraryA(path);
    }
    static bool Close(Library library) {
        return FreeLibrary(library) != FALSE;
    }
    static auto Find(Library library, const char* name) {
        return GetProcAddress(library, name);
    }
    static bool IsInMemory(const char* path) {
        return GetModuleHandleA(path) != nullptr;
    }
#else
    using Library = void*;
    static Library Open(const char* path) {
        return dlopen(path, RTLD_NOW);
    }
    static bool Close(Library library) {
        return dlclose(library) == 0;
    }
    static auto Find(Library library, const char* name) {
        return dlsym(library, name);
    }
    static bool IsInMemory(const char* path) {
        Library const found = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
        return found != nullptr && Close(found); // the look counts as a load of its own
    }
#endif
};

std::map<std::string, Loader::Library> loaded;
int captures = 0;

Bool32 RULECANVAS_THISCALL CountCapture(void* /*target*/, Bool32 /*take*/) {
    ++captures;
    return 1;
}

template <class Function>
Function* Find(const char* library, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(Loader::Find(loaded[library], name)));
}
#define FIND(function) const auto function = Find<decltype(rulecanvas::function)>("rulecanvas", #function)

bool Refuse() {
    FIND(CreateVideoAnalyseContainer);
    FIND(CreateMainVideoAnalyseShape);
    FIND(ReleaseVideoAnalyseContainer);
    const ContainerHandle container = CreateVideoAnalyseContainer(nullptr);
    const auto accepts = [&](const char* config, const char* option) {
        return CreateMainVideoAnalyseShape(container, 1, "", "Rect", "rule", config, option) != 0;
    };
    const bool accepted = accepts("", R"({"mosaic":{"enable":[1]}})") ||
                          accepts("", R"({"ShapeColor":[{"ColorName":{}}]})") ||
                          accepts(std::string(2000, '[').c_str(), "") || !accepts("", "");
    ReleaseVideoAnalyseContainer(container);
    return !accepted;
}

bool Draw() {
    FIND(CreateVideoAnalyseContainer);
    FIND(EnableVideoAnalyseContainer);
    FIND(SetCtrlContainerWinMouseCaptureDelegate);
    FIND(CreateMainVideoAnalyseShape);
    FIND(GetContainerWinMouseEventHandler);
    captures = 0;
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
    return captures == 1;
}

bool Run(const char* rulecanvas, const std::string& step) {
    if (step == "refuse") {
        return Refuse();
    }
    if (step == "draw") {
        return Draw();
    }
    if (step == "gone") {
        return captures == 1 && !Loader::IsInMemory(rulecanvas);
    }
    if (step == "throw") {
        return Find<int()>("neighbour.dll", "ThrowAndCatch")() == 1;
    }
    const std::string name = step.substr(1);
    const char* const path = name == "rulecanvas" ? rulecanvas : name.c_str();
    if (step[0] == '-') {
        return Loader::Close(loaded[name]);
    }
    loaded[name] = Loader::Open(path);
    return Loader::IsInMemory(path);
}

/// The host itself uses exceptions too.
bool ThrowsAndCatches() {
    try {
        throw 1;
    } catch (int) {
        return true;
    }
}

} // namespace
} // namespace rulecanvas::test

int main(int argc, char** argv) {
    for (int i = 2; i < argc; ++i) {
        std::printf("%s\n", argv[i]);
        std::fflush(stdout); // the step that ends the process must be seen
        if (!rulecanvas::test::Run(argv[1], argv[i])) {
            std::puts("failed");
            return 1;
        }
    }
    return argc > 2 && rulecanvas::test::ThrowsAndCatches() ? 0 : 1;
}
