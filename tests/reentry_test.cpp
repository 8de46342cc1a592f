// What a host may do from inside a callback, or beside one, and what must hold afterwards; torture/ tries everything else.

#include "support/stories.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <thread>

namespace rulecanvas::test {
namespace {

/// Acts inside the callback of that number, from 1, among those that write this down.
void ActInsideOf(ScenarioHost& host, const std::string& entry, int number, std::function<void()> action) {
    host.onEntry = [=, seen = 0](const std::string& now) mutable {
        if (now == entry && ++seen == number) {
            action();
        }
    };
}

constexpr const char* Square = R"({"rule":[[1000,1000],[3000,3000]]})"; // in a view of 800 x 600: (98,73)-(293,220)

/// Draws a polygon whose closing edge would cross another.
void AddBow(ScenarioHost& host) {
    host.Add("Polygon");
    Act(host, "click 50 50 click 100 50 click 100 0 click 0 0 click 0 100 click 120 100 click 120 40");
    host.TakeLog();
}

TEST(Callbacks, LetsTheLatestWordOfTheHostStand) {
    using Case = std::array<const char*, 3>;
    for (const auto& [inside, gesture, heard] :
         {Case{"select rule", "drag 150 150 160 160", "select off on redraw off 2>3"},
          Case{"state rule 4>3", "drag 150 150 160 160", "select on 4>3 off on"},
          Case{"capture off", "right 150 150", "off off on"}}) {
        FigureHost host("Rect", "", "EnableRBtnDelete");
        host.Drag({100, 100}, {200, 200});
        host.TakeLog();
        ActInsideOf(host, inside, 1, [&] {
            host.container.RedrawShape(host.shape);
            host.Press(150, 150);
        });
        Act(host, gesture);
        EXPECT_EQ(Heard(host), heard) << inside;
        host.onEntry = nullptr;
        host.Release(200, 200);
        host.Drag({0, 0}, {1, 1});
        EXPECT_NE(host.Config(), "") << inside << ": the new drawing was lost";
    }
}

TEST(Callbacks, ARectangleIsStillDrawnWhileTheMouseIsGivenBack) {
    using Case = std::array<const char*, 2>;
    for (const auto& [gesture, heard] :
         {Case{"drag 100 100 200 200", "on redraw off 2>3"}, Case{"click 100 100", "on off"}}) {
        FigureHost host("Rect");
        host.TakeLog();
        ActInsideOf(host, "capture off", 1, [&] { host.Press(150, 150); });
        Act(host, gesture);
        EXPECT_EQ(Heard(host), heard) << "the press takes hold of nothing";
    }
}

TEST(Callbacks, AStepDoesNotBringBackTheFigureThatTheHostReplaced) {
    for (const char* type : {"Rect", "LineShape"}) {
        for (int asked = 1; asked <= 6; ++asked) {
            GridHost host(type);
            host.Drag({100, 100}, {200, 200});
            host.Press(150, 150);
            bool acted = false;
            ActInsideOf(host, "client rect", asked, [&] {
                acted = true;
                host.Release(150, 150);
                host.container.RedrawShape(host.shape);
                Act(host, "drag 100 100 180 190 press 140 145");
            });
            host.Move(155, 155);
            host.onEntry = nullptr;
            EXPECT_TRUE(acted || asked > 1) << type;
            PointF first{};
            PointF second{};
            std::sscanf(host.Config().c_str(), "{\"rule\":[[%f,%f],[%f,%f]]}", &first.x, &first.y, &second.x,
                        &second.y);
            const char* size = acted ? "(80,90)" : "(100,100)"; // fewer questions than that
            EXPECT_EQ(Written({second.x - first.x, second.y - first.y}), size) << type << asked;
        }
    }
}

TEST(Callbacks, AStepDoesNotGoOnWithADrawingThatTheHostBeganAnew) {
    for (const char* type : {"Rect", "BrokenLine", "Polygon", "ArrowLineShape"}) {
        for (int asked = 1; asked <= 4; ++asked) {
            FigureHost host(type);
            host.Press(100, 100);
            bool acted = false;
            ActInsideOf(host, "client rect", asked, [&] {
                acted = true;
                host.container.RedrawShape(host.shape);
                host.Press(300, 300);
            });
            type == std::string("Rect") ? host.Move(200, 200) : host.Click(200, 200);
            host.onEntry = nullptr;
            EXPECT_TRUE(acted || asked > 1) << type;
            std::string drawn;
            for (const std::string& call : host.Paint()) {
                drawn += call;
            }
            EXPECT_TRUE(!acted || drawn.find("(100,100)") == std::string::npos) << type << asked << drawn;
        }
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
    ActInsideOf(host, "capture off", 1, [&] { host.container.DeleteShape(second); });
    host.Release(200, 200);
    EXPECT_EQ(host.TakeLog(), (Lines{"capture off", "capture off", "state rule 2>3"})) << "of the first alone";
}

TEST(Callbacks, AShapeThatIsDeletedBetweenItsHitAndThePressDoesNotAnswer) {
    for (const bool isAskedFirst : {true, false}) {
        ScenarioHost host;
        ShapeID figure = 0;
        const auto add = [&] { figure = host.Add("Rect", Square, "EnableRBtnDelete"); };
        isAskedFirst ? add() : AddBow(host);
        isAskedFirst ? AddBow(host) : add();
        // While the press looks for the figure it hits.
        ActInsideOf(host, "state rule 2>1", 1, [&] { host.container.DeleteShape(figure); });
        host.RightPress(150, 150);
        EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>1", "capture off", "capture off"})) << "one of each";
    }
}

TEST(Callbacks, ADrawingThatBeginsAnewBetweenItsHitAndThePressIsNotFinished) {
    ScenarioHost host;
    const ShapeID path = host.Add("BrokenLine");
    Act(host, "click 9 9 click 90 9 click 90 90");
    host.container.EnableShape(path, false);
    AddBow(host);
    host.container.EnableShape(path);
    ActInsideOf(host, "state rule 2>1", 1, [&] { host.container.RedrawShape(path); });
    host.RightPress(150, 150);
    EXPECT_EQ(host.TakeLog(), (Lines{"state rule 2>1", "capture off", "capture off"})) << "no word of a finish";
}

TEST(Callbacks, ADeletionFromInsideItselfHappensOnce) {
    FigureHost host("Rect", Square);
    host.Press(150, 150);
    host.TakeLog();
    ActInsideOf(host, "capture off", 1, [&] { host.container.DeleteShape(host.shape); });
    host.container.DeleteShape(host.shape);
    EXPECT_EQ(host.TakeLog(), Lines{"capture off"});
    EXPECT_EQ(AllShapeStates().str(), "null");
}

TEST(Callbacks, ReleasingTheContainerWhileAShapeIsMadeMakesNone) {
    for (const char* during : {"client rect", "select "}) {
        ScenarioHost host;
        Lines heard;
        host.onEntry = [&](const std::string& entry) {
            heard.push_back(entry);
            if (entry == during) {
                ReleaseVideoAnalyseContainer(host.container.Handle());
            }
        };
        EXPECT_EQ(host.Add("Rect"), 0U);
        EXPECT_EQ(heard.back(), during) << "the last word to the host";
    }
}

// torture/ has more threads; this one runs where the library has another mutex, too.
TEST(Threads, APaintAndOtherCallsMayRunBesideTheMouse) {
    FigureHost host("Rect", R"({"rule":[[7000,7000],[8000,8000]]})");
    std::atomic<bool> running{true};
    std::atomic<size_t> paints{0};
    std::thread painter([&] {
        while (running) {
            host.container.SetCaption(host.shape, "a caption too long to be kept in place");
            host.container.SelectShape(host.shape);
            host.Paint();
            ++paints;
        }
    });
    for (int round = 0; round < 20; ++round) {
        const ShapeID shape = host.Add("Rect");
        host.Drag({100, 100}, {200, 200});
        host.Press(150, 150);
        const size_t before = paints;
        for (float x = 150; paints < before + 2; x = x < 180 ? x + 1 : 150) { // a whole paint beside the drag
            host.Move(x, x);
        }
        host.container.DeleteShape(shape); // in the middle of the drag
    }
    running = false;
    painter.join();
    EXPECT_EQ(host.Paint().size(), 6U) << "the first one with its handles, alone";
}

} // namespace
} // namespace rulecanvas::test
