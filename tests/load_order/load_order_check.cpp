// Loads and unloads libraries in the order of the arguments and checks that exceptions still end where they are caught:
//
//     load_order_check RULECANVAS STEP...
//         +runtime, -runtime          load or free the compiler's shared runtime library
//         +neighbour, -neighbour      load or free a library that depends on it
//         +rulecanvas, -rulecanvas    load or free the library, whose path is RULECANVAS
//         refuse                      let it refuse configurations; inside, each refusal is an exception
//         throw                       let the neighbour throw

#include "rulecanvas/rulecanvas.h"

#include <cstdio>
#include <map>
#include <string>
#include <windows.h>

namespace rulecanvas::test {
namespace {

class Libraries {
  public:
    explicit Libraries(const char* rulecanvas)
        : paths{{"runtime", RUNTIME_LIBRARY}, {"neighbour", "neighbour.dll"}, {"rulecanvas", rulecanvas}} {}

    bool Load(const std::string& name) { return (loaded[name] = LoadLibraryA(paths.at(name).c_str())) != nullptr; }
    bool Free(const std::string& name) { return FreeLibrary(loaded[name]) != FALSE; }

    template <class Function>
    Function* Find(const std::string& library, const char* name) {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(loaded[library], name)));
    }

  private:
    std::map<std::string, std::string> paths;
    std::map<std::string, HMODULE> loaded;
};

bool Refuse(Libraries& libraries) {
    const auto create =
        libraries.Find<decltype(CreateVideoAnalyseContainer)>("rulecanvas", "CreateVideoAnalyseContainer");
    const auto add = libraries.Find<decltype(CreateMainVideoAnalyseShape)>("rulecanvas", "CreateMainVideoAnalyseShape");
    const auto release =
        libraries.Find<decltype(ReleaseVideoAnalyseContainer)>("rulecanvas", "ReleaseVideoAnalyseContainer");
    const ContainerHandle container = create(nullptr);
    bool refused = true;
    for (const std::string& option :
         {std::string(R"({"mosaic":{"enable":[1]}})"), std::string(R"({"ShapeColor":[{"ColorName":{}}]})")}) {
        refused = refused && add(container, 1, "", "Rect", "rule", "", option.c_str()) == 0;
    }
    const std::string nested(2000, '[');
    refused = refused && add(container, 1, "", "Rect", "rule", nested.c_str(), "") == 0;
    const bool accepted = add(container, 1, "", "Rect", "rule", "", "") != 0;
    release(container);
    return refused && accepted;
}

bool Run(Libraries& libraries, const std::string& step) {
    if (step == "refuse") {
        return Refuse(libraries);
    }
    if (step == "throw") {
        return libraries.Find<int()>("neighbour", "ThrowAndCatch")() == 1;
    }
    return step[0] == '+' ? libraries.Load(step.substr(1)) : libraries.Free(step.substr(1));
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
    rulecanvas::test::Libraries libraries(argc > 1 ? argv[1] : "");
    for (int i = 2; i < argc; ++i) {
        std::printf("%s\n", argv[i]);
        std::fflush(stdout); // the step that ends the process must be seen
        if (!rulecanvas::test::Run(libraries, argv[i])) {
            std::puts("failed");
            return 1;
        }
    }
    return argc > 2 && rulecanvas::test::ThrowsAndCatches() ? 0 : 1;
}
