// A host with four threads: one paints, one calls, one changes the size of its views, and one has the mouse.

#include "check.h"
#include "figures.h"
#include "rulecanvas/host.hpp"
#include "trials.h"

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace rulecanvas::torture {
namespace {

constexpr ViewID View = 7;

class BusyHost {
  public:
    BusyHost() : container(&object) {
        container.OnNotify([](const char*) {});
        container.OnCapture([](bool) { return true; });
        container.OnClientRect([this](ViewID) { return ClientRect{0, 0, width, 600}; });
        container.Enable();
        for (const Figure& figure : Figures()) {
            residents.push_back(container.AddShape({View, figure.type, "label", "rule", "", figure.option}));
        }
    }

    void Paint() {
        Surface surface;
        container.Paint(View, surface);
    }

    void CallAll() {
        for (const ShapeID shape : residents) {
            container.SetCaption(shape, "a caption too long to be kept in place");
            container.SetColour(shape, Outline::Selected, 1, 2, 3);
            container.SelectShape(shape);
            container.ShowHandles(shape);
            container.ShowShape(shape);
            container.EnableShape(shape);
            container.SetDirection(shape, 1);
            container.SetPointLimits(shape, 5, 3);
            container.Configuration(shape);
            container.AddToShape(shape, 1, 2, 3);
        }
        container.SelectedShape();
        container.SetTip(View, "tip");
        container.SetVideoSize(640, 480);
        container.Enable();
        container.SetTranslate({nullptr, nullptr});
        container.SetAdjustPoint({nullptr, nullptr});
    }

    void Resize() {
        width = width == 800 ? 790 : 800;
        container.RefitShapes();
    }

    /// Draws, edits and deletes a figure; the mouse's thread alone makes and deletes figures.
    void UseMouse(const Figure& figure) {
        const ShapeID shape = container.AddShape({View, figure.type, "label", "rule", "", figure.option});
        for (const bool again : {false, true}) {
            Drag({100, 100}, {300, 250});
            Drag({300, 250}, {310, 260});
            Drag(figure.body, {figure.body.x + 5, figure.body.y + 5});
            container.SendMouse(MouseCode::RightDown, View, 300, 250);
            container.SendMouse(MouseCode::CursorQuery, View, 300, 250);
            container.SendKey(View, 27);
            if (!again) {
                container.RedrawShape(shape);
            }
        }
        container.SendMouse(MouseCode::LeftDown, View, figure.body.x, figure.body.y);
        container.DeleteShape(shape); // in the middle of a drag
    }

  private:
    void Drag(const PointF& from, const PointF& to) {
        container.SendMouse(MouseCode::LeftDown, View, from.x, from.y);
        container.SendMouse(MouseCode::Moved, View, (from.x + to.x) / 2, (from.y + to.y) / 2);
        container.SendMouse(MouseCode::Moved, View, to.x, to.y);
        container.SendMouse(MouseCode::LeftUp, View, to.x, to.y);
    }

    std::atomic<int32_t> width{800};
    HostObject object{[] {}, [](uint32_t) {}};
    Container container;
    std::vector<ShapeID> residents;
};

} // namespace

long TryThreads(long rounds) {
    BeginCase("threads");
    BusyHost host;
    std::atomic<bool> running{true};
    std::atomic<long> turns[3]{};
    const auto repeat = [&](size_t thread, void (BusyHost::*turn)()) {
        while (running) {
            (host.*turn)();
            ++turns[thread];
        }
    };
    std::thread painter(repeat, 0, &BusyHost::Paint);
    std::thread caller(repeat, 1, &BusyHost::CallAll);
    std::thread resizer(repeat, 2, &BusyHost::Resize);
    for (long round = 0; round < rounds; ++round) {
        const long before = turns[0];
        for (const Figure& figure : Figures()) {
            host.UseMouse(figure);
        }
        while (turns[0] == before || turns[1] == 0 || turns[2] == 0) {
            std::this_thread::yield(); // every round has had the others beside it
        }
    }
    running = false;
    painter.join();
    caller.join();
    resizer.join();
    return rounds;
}

} // namespace rulecanvas::torture
