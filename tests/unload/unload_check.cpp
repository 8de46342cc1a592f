// Unloads the library, named by the first argument, while containers live and one shape is being dragged: the library
// must end them itself, without a word to the host, and leave nothing behind. Then the same again.

#include "loaded_library.h"
#include "rulecanvas/rulecanvas.h"

#include <cstdio>

namespace rulecanvas::test {
namespace {

int captures = 0;

Bool32 RULECANVAS_THISCALL CountCapture(void* /*target*/, Bool32 /*take*/) {
    ++captures;
    return 1;
}

void RULECANVAS_THISCALL FillRect(void* /*target*/, ViewID /*view*/, ClientRect* rect) {
    *rect = ClientRect{0, 0, 800, 600};
}

template <class Function>
Function* Find(const LoadedLibrary& library, const char* name) {
    return reinterpret_cast<Function*>(library.Find(name));
}

bool LeaveContainersBehind(const LoadedLibrary& library) {
    const auto create = Find<decltype(CreateVideoAnalyseContainer)>(library, "CreateVideoAnalyseContainer");
    const auto enable = Find<decltype(EnableVideoAnalyseContainer)>(library, "EnableVideoAnalyseContainer");
    const auto add = Find<decltype(CreateMainVideoAnalyseShape)>(library, "CreateMainVideoAnalyseShape");
    const auto setRect =
        Find<decltype(SetGetContainerRectClientDelegate)>(library, "SetGetContainerRectClientDelegate");
    const auto setCapture =
        Find<decltype(SetCtrlContainerWinMouseCaptureDelegate)>(library, "SetCtrlContainerWinMouseCaptureDelegate");
    const auto getMouse = Find<decltype(GetContainerWinMouseEventHandler)>(library, "GetContainerWinMouseEventHandler");
    const CDelegate rect{&captures, reinterpret_cast<void*>(&FillRect)};
    const CDelegate capture{&captures, reinterpret_cast<void*>(&CountCapture)};

    create(nullptr);
    const ContainerHandle container = create(nullptr);
    enable(container, 1);
    setRect(container, &rect);
    setCapture(container, &capture);
    const ShapeID shape = add(container, 1, "", "Rect", "rule", "", "");
    ContainerHandlerHolder mouse{nullptr, nullptr};
    getMouse(container, &mouse);
    const ContainerMouseEvent press{MOUSE_LEFT_DOWN, 1, 0, 100, 100, 0, 0};
    mouse.handler->table->invoke(mouse.handler, 0, reinterpret_cast<uintptr_t>(&press));
    mouse.handler->table->destroy(mouse.handler, 1);
    return shape != 0 && captures == 1;
}

bool Run(const char* path) {
    captures = 0;
    bool left = false;
    {
        const LoadedLibrary library(path);
        left = library.IsLoaded() && LeaveContainersBehind(library) && LoadedLibrary::IsInMemory(path);
    }
    return left && captures == 1 && !LoadedLibrary::IsInMemory(path);
}

} // namespace
} // namespace rulecanvas::test

int main(int argc, char** argv) {
    using rulecanvas::test::Run;
    const bool passed = argc == 2 && Run(argv[1]) && Run(argv[1]);
    std::puts(passed ? "unloaded twice" : "failed");
    return passed ? 0 : 1;
}
