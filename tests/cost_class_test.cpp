// What a paint and a step of a drag may cost: questions to the host, locks and memory.

#include "rulecanvas/surface.hpp"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>

namespace {

size_t allocations = 0;
size_t locks = 0;

} // namespace

// The program's own, to be counted; not inlined, or compilers take them for a mismatch.
[[gnu::noinline]] void* operator new(size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, size_t /*size*/) noexcept {
    std::free(memory);
}

/// Stands before rulecanvas::platform::ContainerMutex::lock.
extern "C" void __real__ZN10rulecanvas8platform14ContainerMutex4lockEv(void* self);
extern "C" void __wrap__ZN10rulecanvas8platform14ContainerMutex4lockEv(void* self);
extern "C" void __wrap__ZN10rulecanvas8platform14ContainerMutex4lockEv(void* self) {
    ++locks;
    __real__ZN10rulecanvas8platform14ContainerMutex4lockEv(self);
}

namespace rulecanvas {
namespace {

constexpr size_t FigureCount = 100;

struct Counts {
    size_t questions = 0;
    size_t locks = 0;
    size_t allocations = 0;
};

/// A hundred figures alike.
struct Scene : test::GridScene {
    Scene(const char* type, const char* config) {
        for (size_t i = 0; i < FigureCount; ++i) {
            Add(type, config);
        }
    }

    template <class Call>
    Counts CostOf(Call call) {
        const Counts before{questions, locks, allocations};
        call();
        return {questions - before.questions, locks - before.locks, allocations - before.allocations};
    }
    Counts CostOfSending(uint32_t code, const PointF& at) {
        return CostOf([&] { Send(code, at); });
    }
};

TEST(Cost, OfAPaintIsOneQuestionOneLockAFigureAndNoMemory) {
    for (const test::Type& type : test::Types) {
        Scene scene(type.name, type.config);
        Surface surface;
        const auto paint = [&] { scene.container.OnDraw(0, surface); };
        scene.CostOf(paint);
        const Counts cost = scene.CostOf(paint);
        EXPECT_EQ(cost.questions, 1U) << type.name;
        const size_t shownLock = std::string(type.name) == "OvalShape" ? FigureCount : 0; // asks whether it is shown
        EXPECT_LE(cost.locks, FigureCount + shownLock + 2) << type.name << ": the container and its list besides";
        EXPECT_EQ(cost.allocations, 0U) << type.name;
    }
}

TEST(Cost, OfADragStepIsOneQuestionTwoLocksAndNoMemory) {
    for (const test::Type& type : test::Types) {
        Scene scene(type.name, type.config);
        Surface surface;
        scene.container.OnDraw(0, surface);
        for (const float grab : {1000.0F, 1500.0F}) { // a corner or the point, and the line or the inside
            scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, {grab, grab});
            scene.Send(RULECANVAS_MOUSE_MOVED, {grab + 1, grab});
            const Counts cost = scene.CostOfSending(RULECANVAS_MOUSE_MOVED, {grab + 2, grab + 1});
            EXPECT_LE(cost.questions, 1U) << type.name;
            EXPECT_LE(cost.locks, 2U) << type.name;
            EXPECT_EQ(cost.allocations, 0U) << type.name;
            EXPECT_LE(scene.CostOfSending(RULECANVAS_MOUSE_LEFT_UP, {grab, grab}).questions, 1U) << type.name;
        }
    }
}

TEST(Cost, OfAPressIsNoLockForFiguresItCannotHit) {
    Scene scene("Polygon", R"({"rule":[[100,100],[200,100],[200,200]]})");
    const PointF beside{5000, 5000};
    scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, beside); // deselects them all
    scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, beside);
    const Counts cost = scene.CostOfSending(RULECANVAS_MOUSE_LEFT_DOWN, beside);
    EXPECT_LE(cost.locks, 2U) << "the first one alone answers that the press lies outside";
    EXPECT_EQ(cost.questions, 1U);
}

} // namespace
} // namespace rulecanvas
