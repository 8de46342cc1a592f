// What a host may do from inside a callback, or beside one, and what must hold afterwards.

#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace rulecanvas::test {
namespace {

struct Action {
    const char* name;
    std::function<void(ScenarioHost&, ShapeID)> run;
    bool endsTheShape = false;
};

const Action Actions[] = {
    {"delete the shape", [](ScenarioHost& host, ShapeID shape) { host.container.DeleteShape(shape); }, true},
    {"delete all", [](ScenarioHost& host, ShapeID) { host.container.DeleteAllShapes(); }, true},
    {"release the container",
     [](ScenarioHost& host, ShapeID) { ReleaseVideoAnalyseContainer(host.container.Handle()); }, true},
    {"draw anew", [](ScenarioHost& host, ShapeID shape) { host.container.RedrawShape(shape); }},
    {"draw anew and press",
     [](ScenarioHost& host, ShapeID shape) {
         host.container.RedrawShape(shape);
         host.Press(300, 300);
     }},
    {"press", [](ScenarioHost& host, ShapeID) { host.Press(150, 150); }},
    {"move and release",
     [](ScenarioHost& host, ShapeID) {
         host.Move(120, 130);
         host.Release(120, 130);
     }},
    {"disable and paint",
     [](ScenarioHost& host, ShapeID shape) {
         host.container.EnableShape(shape, false);
         host.Paint();
         host.container.EnableShape(shape);
     }},
    {"make another",
     [](ScenarioHost& host, ShapeID) {
         host.container.AddShape({TheView + 1, "Rect"});
     }},
};

/// Draws, moves, resizes and deletes one shape; every kind of callback comes.
void EditFromBeginningToEnd(ScenarioHost& host) {
    host.Drag({100, 100}, {200, 200});
    host.Drag({100, 100}, {90, 90});
    host.Drag({150, 150}, {160, 160});
    host.Drag({210, 210}, {260, 260});
    host.Paint();
    host.RightPress(150, 150);
}

/// Runs the action inside the callback of that number; the number of callbacks when it is beyond them.
size_t ActInside(ScenarioHost& host, ShapeID shape, const Action& action, size_t at) {
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
    return seen;
}

/// What is written down when a shape is drawn anew by one drag.
Lines DrawnAnew(ScenarioHost& host, ShapeID shape) {
    host.container.RedrawShape(shape);
    host.TakeLog();
    host.Drag({300, 300}, {400, 400});
    return host.TakeLog();
}

class Reentry : public testing::TestWithParam<const char*> {};

TEST_P(Reentry, LeavesNothingHalfMadeInAnyCallbackOfAGesture) {
    ScenarioHost undisturbed;
    const Lines expected = DrawnAnew(undisturbed, undisturbed.Add(GetParam(), "", "EnableRBtnDelete"));
    for (const Action& action : Actions) {
        size_t callbacks = 1;
        for (size_t at = 0; at < callbacks; ++at) {
            SCOPED_TRACE(action.name + std::string(" at callback ") + std::to_string(at));
            ScenarioHost host;
            const ShapeID shape = host.Add(GetParam(), "", "EnableRBtnDelete");
            callbacks = ActInside(host, shape, action, at);
            EXPECT_EQ(DrawnAnew(host, shape), action.endsTheShape ? Lines{} : expected);
            if (action.endsTheShape) {
                EXPECT_EQ(host.Paint(), Lines{});
            }
        }
        EXPECT_GT(callbacks, action.endsTheShape ? 0U : 10U) << "there was nothing to act in";
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, Reentry,
                         testing::Values("Rect", "ArrowLineShape", "Polygon", "CrossShape", "SpotShape"),
                         [](const auto& tested) { return std::string(tested.param); });

TEST(Callbacks, LetsTheLatestWordOfTheHostStand) {
    struct Case {
        const char* inside;
        std::function<void(ScenarioHost&)> gesture;
        Lines log;
    };
    for (const Case& c : {
             Case{"select rule",
                  [](ScenarioHost& host) {
                      host.Drag({150, 150}, {160, 160});
                  },
                  {"select rule", "capture off", "capture on", "redraw", "capture off", "state rule 2>3"}},
             Case{"state rule 4>3",
                  [](ScenarioHost& host) {
                      host.Drag({150, 150}, {160, 160});
                  },
                  {"select rule", "capture on", "state rule 4>3", "capture off", "capture on"}},
             Case{"capture off",
                  [](ScenarioHost& host) { host.RightPress(150, 150); },
                  {"capture off", "capture off", "capture on"}},
         }) {
        ScenarioHost host;
        const ShapeID shape = host.Add("Rect", "", "EnableRBtnDelete");
        host.Drag({100, 100}, {200, 200});
        host.TakeLog();
        bool done = false;
        host.onEntry = [&](const std::string& entry) {
            if (!done && entry == c.inside) {
                done = true;
                host.container.RedrawShape(shape);
                host.Press(150, 150);
            }
        };
        c.gesture(host);
        EXPECT_EQ(host.TakeLog(), c.log) << c.inside;
        host.onEntry = nullptr;
        host.Release(200, 200);
        host.Drag({0, 0}, {1, 1});
        EXPECT_NE(host.Config(shape), "") << c.inside << ": the new drawing was lost";
    }
}

TEST(Callbacks, AListenerThatIsGoneIsNotCalled) {
    ScenarioHost host;
    host.container.AddShape({TheView, "Rect", "label", "rule"});
    const ShapeID first = host.container.SelectedShape();
    host.Press(100, 100);
    host.container.EnableShape(first, false);
    const ShapeID second = host.Add("Rect");
    host.Press(110, 110);
    host.TakeLog();
    host.onEntry = [&](const std::string& entry) {
        if (entry == "capture off") {
            host.onEntry = nullptr;
            host.container.DeleteShape(second);
        }
    };
    host.Release(200, 200);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture off", "capture off", "state rule 2>3"})) << "of the first alone";
}

TEST(Callbacks, ReleasingTheContainerWhileAShapeIsMadeMakesNone) {
    ScenarioHost host;
    host.onEntry = [&](const std::string& entry) {
        if (entry == "select ") {
            ReleaseVideoAnalyseContainer(host.container.Handle());
        }
    };
    EXPECT_EQ(host.Add("Rect"), 0U);
}

TEST(Threads, APaintAndOtherCallsMayRunBesideTheMouse) {
    ScenarioHost host;
    const ShapeID resident = host.Add("Rect", R"({"rule":[[7000,7000],[8000,8000]]})");
    std::atomic<bool> running{true};
    std::atomic<size_t> drawn{0};
    std::thread painter([&] {
        while (running) {
            drawn += host.Paint().size();
        }
    });
    std::thread caller([&] {
        while (running) {
            host.container.SetCaption(resident, "a caption too long to be kept in place");
            host.container.SetColour(resident, Outline::Selected, 1, 2, 3);
            host.container.SetTip(TheView, "tip");
            host.container.SelectShape(resident);
            host.container.SetDirection(resident, 1);
            host.container.RefitShapes();
            host.container.Configuration(resident);
        }
    });
    for (int round = 0; round < 20; ++round) {
        const ShapeID shape = host.Add("Rect");
        host.Drag({100, 100}, {200, 200});
        host.Press(150, 150);
        for (float x = 150; x < 180; x += 1) {
            host.Move(x, x);
        }
        host.container.ShowShape(shape, round % 2 == 0);
        host.container.DeleteShape(shape); // in the middle of the drag
    }
    running = false;
    painter.join();
    caller.join();
    EXPECT_GT(drawn, 0U);
    host.container.SetTip(TheView, "");
    host.container.SelectShape(resident);
    EXPECT_EQ(host.Paint().size(), 6U) << "the resident with its handles, alone";
}

} // namespace
} // namespace rulecanvas::test
