// Unloads the library, named by the first argument, while a container lives and its shape is being drawn: the library must
// end them itself, without a word to the host, and leave nothing behind. Then the same again.

#include "library.h"
#include "rulecanvas/rulecanvas.h"

#include <cstdio>

namespace rulecanvas::test {
namespace {

int captures = 0;

Bool32 RULECANVAS_THISCALL CountCapture(void* /*target*/, Bool32 /*take*/) {
    ++captures;
    return 1;
}

template <class Function>
Function* Find(void* library, const char* name) {
    return reinterpret_cast<Function*>(FindFunction(library, name));
}
#define FIND(function) const auto function = Find<decltype(rulecanvas::function)>(library, #function)

void StartDrawing(void* library) {
    FIND(CreateVideoAnalyseContainer);
    FIND(EnableVideoAnalyseContainer);
    FIND(SetCtrlContainerWinMouseCaptureDelegate);
    FIND(CreateMainVideoAnalyseShape);
    FIND(GetContainerWinMouseEventHandler);
    const ContainerHandle container = CreateVideoAnalyseContainer(nullptr);
    const CDelegate capture{&captures, reinterpret_cast<void*>(&CountCapture)};
    EnableVideoAnalyseContainer(container, 1);
    SetCtrlContainerWinMouseCaptureDelegate(container, &capture);
    CreateMainVideoAnalyseShape(container, 1, "", "SpotShape", "", "",
                                ""); // one that gives the capture back at its end
    CreateMainVideoAnalyseShape(container, 2, "", "Rect", "rule", "", "");
    ContainerHandlerHolder mouse{nullptr, nullptr};
    GetContainerWinMouseEventHandler(container, &mouse);
    const ContainerMouseEvent press{RULECANVAS_MOUSE_LEFT_DOWN, 2, 0, 0, 0, 0, 0};
    mouse.handler->table->invoke(mouse.handler, 0, reinterpret_cast<uintptr_t>(&press));
    mouse.handler->table->destroy(mouse.handler, 1);
}

bool Run(const char* path) {
    captures = 0;
    void* library = OpenLibrary(path);
    if (library == nullptr) {
        return false;
    }
    StartDrawing(library);
    const bool wasThere = IsInMemory(path);
    CloseLibrary(library);
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
