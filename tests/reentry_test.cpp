// What a host may do from inside a callback, or beside one, and what must hold afterwards.

#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace rulecanvas::test {
namespace {

using Action = std::function<void(ScenarioHost&, ShapeID)>;

struct NamedAction {
    const char* name;
    Action run;
    bool endsTheShape;
};

const NamedAction Actions[] = {
    {"delete the shape", [](ScenarioHost& host, ShapeID shape) { host.container.deleteShape(shape); }, true},
    {"delete all", [](ScenarioHost& host, ShapeID) { host.container.deleteAllShapes(); }, true},
    {"release the container",
     [](ScenarioHost& host, ShapeID) { ReleaseVideoAnalyseContainer(host.container.handle()); }, true},
    {"draw anew", [](ScenarioHost& host, ShapeID shape) { host.container.redrawShape(shape); }, false},
    {"paint and refit",
     [](ScenarioHost& host, ShapeID) {
         host.Paint();
         host.container.refitShapes();
     },
     false},
    {"move the mouse", [](ScenarioHost& host, ShapeID) { host.Move(120, 130); }, false},
    {"make another",
     [](ScenarioHost& host, ShapeID) {
         host.container.addShape({TheView, "Rect"});
     },
     false},
};

/// Draws, moves, resizes and deletes one shape; every kind of callback comes.
void EditFromBeginningToEnd(ScenarioHost& host) {
    host.Drag({100, 100}, {200, 200});
    host.Drag({150, 150}, {160, 160});
    host.Drag({210, 210}, {260, 260});
    host.RightPress(150, 150);
}

size_t CallbacksOfOneRun() {
    ScenarioHost host;
    host.Add("Rect", "", "EnableRBtnDelete");
    EditFromBeginningToEnd(host);
    return host.TakeLog().size();
}

TEST(Reentry, IsSafeInEveryCallbackOfAGesture) {
    const size_t callbacks = CallbacksOfOneRun();
    ASSERT_GT(callbacks, 10U);
    for (const NamedAction& action : Actions) {
        for (size_t at = 0; at < callbacks; ++at) {
            SCOPED_TRACE(action.name + std::string(" at callback ") + std::to_string(at));
            ScenarioHost host;
            const ShapeID shape = host.Add("Rect", "", "EnableRBtnDelete");
            size_t seen = 0;
            bool acting = false;
            host.onEntry = [&](const std::string&) {
                if (!acting && seen++ == at) {
                    acting = true;
                    action.run(host, shape);
                    acting = false;
                }
            };
            EditFromBeginningToEnd(host);
            host.onEntry = nullptr;
            host.TakeLog();
            if (action.endsTheShape) {
                EXPECT_EQ(host.Config(shape), "");
                host.Send(RULECANVAS_MOUSE_MOVED_EVENT, 150, 150);
                host.Release(150, 150);
                EXPECT_EQ(host.TakeLog(), Lines{}) << "a listener stayed behind";
                EXPECT_EQ(host.Paint(), Lines{});
            }
        }
    }
}

TEST(Reentry, ADrawingAnewInsideAGestureWins) {
    ScenarioHost host;
    const ShapeID shape = host.Add("Rect");
    host.Drag({100, 100}, {200, 200});
    host.onEntry = [&](const std::string& entry) {
        if (entry == "select rule") {
            host.container.redrawShape(shape);
        }
    };
    host.Drag({150, 150}, {160, 160});
    host.onEntry = nullptr;
    host.TakeLog();
    host.Drag({10, 10}, {50, 50});
    EXPECT_EQ(host.TakeLog(), (Lines{"capture on", "redraw", "capture off", "state rule 2>3"}));
}

TEST(Reentry, AListenerThatIsGoneIsNotCalled) {
    ScenarioHost host;
    const ShapeID first = host.Add("Rect");
    const ShapeID second = host.Add("Rect");
    host.Press(100, 100);
    const ShapeID drawing = std::min(first, second);
    host.container.sendMouse(MouseCode::leftDown, TheView, 100, 100); // busy: changes nothing
    host.onEntry = [&](const std::string& entry) {
        if (entry == "redraw") {
            host.container.deleteShape(drawing);
        }
    };
    host.Move(200, 200);
    host.onEntry = nullptr;
    host.TakeLog();
    host.Release(200, 200);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(Threads, APaintMayRunBesideEverything) {
    ScenarioHost host;
    host.Add("Rect", R"({"rule":[[7000,7000],[8000,8000]]})");
    const Lines still = host.Paint();
    std::atomic<bool> painting{true};
    std::atomic<size_t> drawn{0};
    std::thread painter([&] {
        while (painting) {
            drawn += host.Paint().size();
        }
    });
    for (int round = 0; round < 20; ++round) {
        const ShapeID shape = host.Add("Rect");
        host.Drag({100, 100}, {200, 200});
        host.container.setCaption(shape, "a caption that is too long to be kept in place");
        host.container.setColour(shape, Outline::selected, round, 0, 0);
        host.container.setTip(TheView, "tip");
        host.Press(150, 150);
        for (float x = 150; x < 180; x += 1) {
            host.Move(x, x);
        }
        host.container.showShape(shape, round % 2 == 0);
        host.container.deleteShape(shape); // in the middle of the drag
    }
    painting = false;
    painter.join();
    EXPECT_GT(drawn, 0U);
    EXPECT_EQ(host.Paint().size(), still.size() - 4) << "deselected by the presses, otherwise as it was";
}

} // namespace
} // namespace rulecanvas::test
