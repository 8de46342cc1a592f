// The exported functions in the order of their table: each looks its container up and forwards.

#include "rulecanvas/rulecanvas.h"

#include "container/container.h"
#include "container/container_registry.h"
#include "shape/json_text.h"

#include <type_traits>
#include <utility>

namespace rulecanvas {
namespace {

using Container = CVideoAnalyseContainer;
using Shape = CVideoAnalyseShape;

/// Runs one exported call. Whatever it throws (memory, the host's own) ends here as the failure value.
template <class Call>
auto Guarded(Call call) -> decltype(call()) {
    try {
        return call();
    } catch (...) {
        return decltype(call())();
    }
}

/// Calls the container behind a handle. The result of the call, or for a call without one whether the container is
/// known; the failure value when it is not.
template <class Call>
auto With(ContainerHandle handle, Call call) {
    return Guarded([&] {
        using Result = decltype(call(std::declval<Container&>()));
        const ContainerPtr container = ContainerRegistry::Instance().Find(handle);
        if constexpr (std::is_void_v<Result>) {
            if (container != nullptr) {
                call(*container);
            }
            return ToBool32(container != nullptr);
        } else if constexpr (std::is_same_v<Result, bool>) {
            return ToBool32(container != nullptr && call(*container));
        } else {
            return container != nullptr ? call(*container) : Result();
        }
    });
}

/// Hands what a pointer of the host points to, if anything, to an operation of the container. Whether it did.
template <class Words, class Operation>
Bool32 PassOn(ContainerHandle handle, Words* words, Operation operation) {
    return With(handle, [&](Container& container) {
        if (words != nullptr) {
            (container.*operation)(*words);
        }
        return words != nullptr;
    });
}

/// Calls an operation of a shape. Whether the shape is known.
template <class... Parameters, class... Arguments>
bool Apply(Container& container, ShapeID id, void (Shape::*operation)(Parameters...), Arguments... arguments) {
    const ShapePtr shape = container.DeepFind(id);
    if (shape != nullptr) {
        ((*shape).*operation)(arguments...);
    }
    return shape != nullptr;
}

} // namespace

extern "C" {

ContainerHandle RULECANVAS_CALL CreateVideoAnalyseContainer(void* hostObject) {
    return Guarded([&] { return ContainerRegistry::Instance().Insert(std::make_shared<Container>(hostObject)); });
}

void RULECANVAS_CALL ReleaseVideoAnalyseContainer(ContainerHandle container) {
    Guarded([&] { ContainerRegistry::Instance().Erase(container); });
}

ShapeID RULECANVAS_CALL CreateMainVideoAnalyseShape(ContainerHandle container, ViewID view, const char* label,
                                                    const char* type, const char* name, const char* config,
                                                    const char* option) {
    return With(container,
                [&](Container& known) { return known.CreateMainShape(view, label, type, name, config, option); });
}

Bool32 RULECANVAS_CALL GetContainerWinMouseEventHandler(ContainerHandle container, ContainerHandlerHolder* holder) {
    return PassOn(container, holder, &Container::CopyMouseHandler);
}

Bool32 RULECANVAS_CALL GetContainerDrawEventHandler(ContainerHandle container, ContainerHandlerHolder* holder) {
    return PassOn(container, holder, &Container::CopyDrawHandler);
}

void RULECANVAS_CALL SetContainerNotifyEventDelegate(ContainerHandle container,
                                                     const ContainerNotifyEventDelegate* delegate) {
    PassOn(container, delegate, &Container::SetNotifyDelegate);
}

void RULECANVAS_CALL SetAdjustPointCoordinateDelegate(ContainerHandle container,
                                                      const AdjustPointCoordinateDelegate* delegate) {
    PassOn(container, delegate, &Container::SetAdjustPointDelegate);
}

uint32_t RULECANVAS_CALL AddVideoAnalyseShape(ContainerHandle container, ShapeID shape, uint32_t first, uint32_t second,
                                              uint32_t third) {
    return With(container, [&](Container& known) { return known.AddToShape(shape, first, second, third); });
}

Bool32 RULECANVAS_CALL DeleteVideoAnalyseShape(ContainerHandle container, ShapeID shape) {
    return With(container, [&](Container& known) { known.DeleteShape(shape); });
}

void RULECANVAS_CALL DeleteAllVideoAnalyseShape(ContainerHandle container) {
    With(container, [&](Container& known) { known.DeleteAllShapes(); });
}

Bool32 RULECANVAS_CALL SelectVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 select) {
    return With(container, [&](Container& known) { return known.SelectShape(shape, ReadBool(select)); });
}

int32_t RULECANVAS_CALL SetVideoAnalyseShapeDirection(ContainerHandle container, ShapeID shape, int32_t direction) {
    return With(container, [&](Container& known) { return known.SetShapeDirection(shape, direction); });
}

Bool32 RULECANVAS_CALL EnableVideoAnalyseContainer(ContainerHandle container, Bool32 enable) {
    return With(container, [&](Container& known) { known.Enable(ReadBool(enable)); });
}

Bool32 RULECANVAS_CALL GetVideoAnalyseShapeConfigData(ContainerHandle container, ShapeID shape, char* buffer,
                                                      int32_t size) {
    return With(container, [&](Container& known) { return known.GetShapeConfig(shape, buffer, size); });
}

Bool32 RULECANVAS_CALL EnableVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 enable) {
    return With(container,
                [&](Container& known) { return Apply(known, shape, &Shape::EnableShape, ReadBool(enable)); });
}

Bool32 RULECANVAS_CALL RedrawVideoAnalyseShape(ContainerHandle container, ShapeID shape) {
    return With(container, [&](Container& known) { return known.RedrawShape(shape); });
}

Bool32 RULECANVAS_CALL SetGetContainerRectClientDelegate(ContainerHandle container,
                                                         const GetContainerRectClientDelegate* delegate) {
    return PassOn(container, delegate, &Container::SetClientRectDelegate);
}

Bool32 RULECANVAS_CALL SetCtrlContainerWinMouseCaptureDelegate(ContainerHandle container,
                                                               const CtrlContainerWinMouseCaptureDelegate* delegate) {
    return PassOn(container, delegate, &Container::SetCaptureDelegate);
}

ShapeID RULECANVAS_CALL GetSelectedVideoAnalyseShapeID(ContainerHandle container) {
    return With(container, [&](Container& known) { return known.GetSelectedShape(); });
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeShowName(ContainerHandle container, ShapeID shape, const char* text) {
    return With(container, [&](Container& known) { known.SetShowName(shape, text); });
}

Bool32 RULECANVAS_CALL ShowVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 show) {
    return With(container, [&](Container& known) { Apply(known, shape, &Shape::ShowShape, ReadBool(show)); });
}

Bool32 RULECANVAS_CALL SetContainerTranslateDelegate(ContainerHandle container,
                                                     const ContainerTranslateDelegate* delegate) {
    return PassOn(container, delegate, &Container::SetTranslateDelegate);
}

Bool32 RULECANVAS_CALL SetVideoAnalyseContainerTip(ContainerHandle container, ViewID view, const char* tip) {
    return With(container, [&](Container& known) { known.SetTip(view, tip); });
}

Bool32 RULECANVAS_CALL InvalidateAllShape(ContainerHandle container) {
    return With(container, [&](Container& known) { known.InvalidateAll(); });
}

Bool32 RULECANVAS_CALL SetAdjustBoxbShow(ContainerHandle container, ShapeID shape, Bool32 show) {
    return With(container, [&](Container& known) { Apply(known, shape, &Shape::SetAdjustBoxShow, ReadBool(show)); });
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeColor(ContainerHandle container, ShapeID shape, int32_t red, int32_t green,
                                                 int32_t blue, Bool32 selectedColour) {
    return With(container, [&](Container& known) {
        return Apply(known, shape, &Shape::SetShapeColor, red, green, blue, ReadBool(selectedColour));
    });
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeMaxPtNum(ContainerHandle container, ShapeID shape, int32_t maximum,
                                                    int32_t minimum) {
    return With(container,
                [&](Container& known) { return Apply(known, shape, &Shape::SetMaxPtNum, maximum, minimum); });
}

void RULECANVAS_CALL SetPixelCount(ContainerHandle container, int32_t width, int32_t height) {
    With(container, [&](Container& known) { known.SetPixelCount(width, height); });
}

void RULECANVAS_CALL GetVideoAnalyseAllShapestates(char* buffer, int32_t size) {
    Guarded([&] { CopyText(ContainerRegistry::Instance().StateReport(), CopyRule::Line, buffer, size); });
}

} // extern "C"

} // namespace rulecanvas
