// The exported functions in the order of their table: each looks its container up and forwards.

#include "rulecanvas/rulecanvas.h"

#include "container/container.h"
#include "container/container_registry.h"
#include "container/state_report.h"
#include "shape/json_text.h"

namespace rulecanvas {
namespace {

using Container = CVideoAnalyseContainer;

/// Runs one exported call. Whatever it throws (memory, the host's own) ends here as the failure value.
template <class Call>
auto Guarded(Call call) -> decltype(call()) {
    try {
        return call();
    } catch (...) {
        return decltype(call())();
    }
}

Bool32 ResultOf(bool result) {
    return ToBool32(result);
}

template <class Number>
Number ResultOf(Number result) {
    return result;
}

/// Calls an operation of the container behind a handle; the failure value when there is none.
template <class Result, class... Parameters, class... Arguments>
auto Forward(ContainerHandle handle, Result (Container::*operation)(Parameters...), Arguments... arguments) {
    return Guarded([&] {
        const ContainerPtr container = ContainerRegistry::Instance().Find(handle);
        return container == nullptr ? decltype(ResultOf(Result()))()
                                    : ResultOf(((*container).*operation)(arguments...));
    });
}

/// Calls an operation without a result: true for every known container.
template <class... Parameters, class... Arguments>
Bool32 Do(ContainerHandle handle, void (Container::*operation)(Parameters...), Arguments... arguments) {
    return Guarded([&] {
        const ContainerPtr container = ContainerRegistry::Instance().Find(handle);
        if (container != nullptr) {
            ((*container).*operation)(arguments...);
        }
        return ToBool32(container != nullptr);
    });
}

/// Hands what a pointer of the host points to, if anything, to an operation of the container. Whether it did.
template <class Words, class Operation>
Bool32 PassOn(ContainerHandle handle, Words* words, Operation operation) {
    return Guarded([&] {
        const ContainerPtr container = ContainerRegistry::Instance().Find(handle);
        const bool passed = container != nullptr && words != nullptr;
        if (passed) {
            ((*container).*operation)(*words);
        }
        return ToBool32(passed);
    });
}

ContainerHandle Create(void* hostObject) {
    const auto container = std::make_shared<Container>(hostObject);
    ContainerRegistry::Instance().Insert(container);
    return container->GetHandle();
}

} // namespace

extern "C" {

ContainerHandle RULECANVAS_CALL CreateVideoAnalyseContainer(void* hostObject) {
    return Guarded([&] { return Create(hostObject); });
}

void RULECANVAS_CALL ReleaseVideoAnalyseContainer(ContainerHandle container) {
    Guarded([&] { ContainerRegistry::Instance().Erase(container); });
}

ShapeID RULECANVAS_CALL CreateMainVideoAnalyseShape(ContainerHandle container, ViewID view, const char* label,
                                                    const char* type, const char* name, const char* config,
                                                    const char* option) {
    return Forward(container, &Container::CreateMainShape, view, label, type, name, config, option);
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
    return Forward(container, &Container::AddToShape, shape, first, second, third);
}

Bool32 RULECANVAS_CALL DeleteVideoAnalyseShape(ContainerHandle container, ShapeID shape) {
    return Forward(container, &Container::DeleteShape, shape);
}

void RULECANVAS_CALL DeleteAllVideoAnalyseShape(ContainerHandle container) {
    Do(container, &Container::DeleteAllShapes);
}

Bool32 RULECANVAS_CALL SelectVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 select) {
    return Forward(container, &Container::SelectShape, shape, ReadBool(select));
}

int32_t RULECANVAS_CALL SetVideoAnalyseShapeDirection(ContainerHandle container, ShapeID shape, int32_t direction) {
    return Forward(container, &Container::SetShapeDirection, shape, direction);
}

Bool32 RULECANVAS_CALL EnableVideoAnalyseContainer(ContainerHandle container, Bool32 enable) {
    return Forward(container, &Container::Enable, ReadBool(enable));
}

Bool32 RULECANVAS_CALL GetVideoAnalyseShapeConfigData(ContainerHandle container, ShapeID shape, char* buffer,
                                                      int32_t size) {
    return Forward(container, &Container::GetShapeConfig, shape, buffer, size);
}

Bool32 RULECANVAS_CALL EnableVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 enable) {
    return Forward(container, &Container::EnableShape, shape, ReadBool(enable));
}

Bool32 RULECANVAS_CALL RedrawVideoAnalyseShape(ContainerHandle container, ShapeID shape) {
    return Forward(container, &Container::RedrawShape, shape);
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
    return Forward(container, &Container::GetSelectedShape);
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeShowName(ContainerHandle container, ShapeID shape, const char* text) {
    return Do(container, &Container::SetShowName, shape, text);
}

Bool32 RULECANVAS_CALL ShowVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 show) {
    return Do(container, &Container::ShowShape, shape, ReadBool(show));
}

Bool32 RULECANVAS_CALL SetContainerTranslateDelegate(ContainerHandle container,
                                                     const ContainerTranslateDelegate* delegate) {
    return PassOn(container, delegate, &Container::SetTranslateDelegate);
}

Bool32 RULECANVAS_CALL SetVideoAnalyseContainerTip(ContainerHandle container, ViewID view, const char* tip) {
    return Do(container, &Container::SetTip, view, tip);
}

Bool32 RULECANVAS_CALL InvalidateAllShape(ContainerHandle container) {
    return Do(container, &Container::InvalidateAll);
}

Bool32 RULECANVAS_CALL SetAdjustBoxbShow(ContainerHandle container, ShapeID shape, Bool32 show) {
    return Do(container, &Container::ShowAdjustBox, shape, ReadBool(show));
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeColor(ContainerHandle container, ShapeID shape, int32_t red, int32_t green,
                                                 int32_t blue, Bool32 selectedColour) {
    return Forward(container, &Container::SetShapeColor, shape, red, green, blue, ReadBool(selectedColour));
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeMaxPtNum(ContainerHandle container, ShapeID shape, int32_t maximum,
                                                    int32_t minimum) {
    return Forward(container, &Container::SetShapeMaxPtNum, shape, maximum, minimum);
}

void RULECANVAS_CALL SetPixelCount(ContainerHandle container, int32_t width, int32_t height) {
    Do(container, &Container::SetPixelCount, width, height);
}

void RULECANVAS_CALL GetVideoAnalyseAllShapestates(char* buffer, int32_t size) {
    Guarded([&] { CopyText(StateReport(ContainerRegistry::Instance().All()), CopyRule::Line, buffer, size); });
}

} // extern "C"

} // namespace rulecanvas
