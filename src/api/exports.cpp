// The exported functions in the order of their table: each looks its container up and forwards.

#include "rulecanvas/rulecanvas.h"

#include "api/container_registry.h"
#include "container/state_report.h"
#include "shape/json_text.h"

namespace rulecanvas {
namespace {

ContainerRegistry registry;

/// Runs one exported call. Whatever it throws (memory, a configuration of the wrong type) ends here as the failure
/// value.
template <class Call>
auto Guarded(Call call) -> decltype(call()) {
    try {
        return call();
    } catch (...) {
        return decltype(call())();
    }
}

/// Runs a call on the container behind a handle; the failure value when there is none.
template <class Call>
auto OnContainer(ContainerHandle handle, Call call) {
    using Result = decltype(call(std::declval<CVideoAnalyseContainer&>()));
    return Guarded([&]() -> Result {
        if (const std::shared_ptr<CVideoAnalyseContainer> container = registry.Find(handle)) {
            return call(*container);
        }
        return Result();
    });
}

/// Hands what a pointer of the host points to, if anything, to an operation of the container. Whether it did.
template <class Words, class Operation>
Bool32 PassOn(ContainerHandle handle, Words* words, Operation operation) {
    return OnContainer(handle, [&](CVideoAnalyseContainer& container) -> Bool32 {
        if (words == nullptr) {
            return 0;
        }
        (container.*operation)(*words);
        return 1;
    });
}

} // namespace

extern "C" {

ContainerHandle RULECANVAS_CALL CreateVideoAnalyseContainer(void* hostObject) {
    return Guarded([&] { return registry.Insert(CVideoAnalyseContainer::Create(hostObject)); });
}

void RULECANVAS_CALL ReleaseVideoAnalyseContainer(ContainerHandle container) {
    Guarded([&] { registry.Erase(container); });
}

ShapeID RULECANVAS_CALL CreateMainVideoAnalyseShape(ContainerHandle container, ViewID view, const char* label,
                                                    const char* type, const char* name, const char* config,
                                                    const char* option) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        return found.CreateMainShape(view, label, type, name, config, option);
    });
}

Bool32 RULECANVAS_CALL GetContainerWinMouseEventHandler(ContainerHandle container, ContainerHandlerHolder* holder) {
    return PassOn(container, holder, &CVideoAnalyseContainer::CopyMouseHandler);
}

Bool32 RULECANVAS_CALL GetContainerDrawEventHandler(ContainerHandle container, ContainerHandlerHolder* holder) {
    return PassOn(container, holder, &CVideoAnalyseContainer::CopyDrawHandler);
}

void RULECANVAS_CALL SetContainerNotifyEventDelegate(ContainerHandle container,
                                                     const ContainerNotifyEventDelegate* delegate) {
    PassOn(container, delegate, &CVideoAnalyseContainer::SetNotifyDelegate);
}

void RULECANVAS_CALL SetAdjustPointCoordinateDelegate(ContainerHandle container,
                                                      const AdjustPointCoordinateDelegate* delegate) {
    PassOn(container, delegate, &CVideoAnalyseContainer::SetAdjustPointDelegate);
}

uint32_t RULECANVAS_CALL AddVideoAnalyseShape(ContainerHandle container, ShapeID shape, uint32_t first, uint32_t second,
                                              uint32_t third) {
    return OnContainer(container,
                       [&](CVideoAnalyseContainer& found) { return found.AddToShape(shape, first, second, third); });
}

Bool32 RULECANVAS_CALL DeleteVideoAnalyseShape(ContainerHandle container, ShapeID shape) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) { return ToBool32(found.DeleteShape(shape)); });
}

void RULECANVAS_CALL DeleteAllVideoAnalyseShape(ContainerHandle container) {
    OnContainer(container, [](CVideoAnalyseContainer& found) { found.DeleteAllShapes(); });
}

Bool32 RULECANVAS_CALL SelectVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 select) {
    return OnContainer(
        container, [&](CVideoAnalyseContainer& found) { return ToBool32(found.SelectShape(shape, ReadBool(select))); });
}

int32_t RULECANVAS_CALL SetVideoAnalyseShapeDirection(ContainerHandle container, ShapeID shape, int32_t direction) {
    return OnContainer(container,
                       [&](CVideoAnalyseContainer& found) { return found.SetShapeDirection(shape, direction); });
}

Bool32 RULECANVAS_CALL EnableVideoAnalyseContainer(ContainerHandle container, Bool32 enable) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        found.Enable(ReadBool(enable));
        return ToBool32(true);
    });
}

Bool32 RULECANVAS_CALL GetVideoAnalyseShapeConfigData(ContainerHandle container, ShapeID shape, char* buffer,
                                                      int32_t size) {
    return OnContainer(
        container, [&](CVideoAnalyseContainer& found) { return ToBool32(found.GetShapeConfig(shape, buffer, size)); });
}

Bool32 RULECANVAS_CALL EnableVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 enable) {
    return OnContainer(
        container, [&](CVideoAnalyseContainer& found) { return ToBool32(found.EnableShape(shape, ReadBool(enable))); });
}

Bool32 RULECANVAS_CALL RedrawVideoAnalyseShape(ContainerHandle container, ShapeID shape) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) { return ToBool32(found.RedrawShape(shape)); });
}

Bool32 RULECANVAS_CALL SetGetContainerRectClientDelegate(ContainerHandle container,
                                                         const GetContainerRectClientDelegate* delegate) {
    return PassOn(container, delegate, &CVideoAnalyseContainer::SetClientRectDelegate);
}

Bool32 RULECANVAS_CALL SetCtrlContainerWinMouseCaptureDelegate(ContainerHandle container,
                                                               const CtrlContainerWinMouseCaptureDelegate* delegate) {
    return PassOn(container, delegate, &CVideoAnalyseContainer::SetCaptureDelegate);
}

ShapeID RULECANVAS_CALL GetSelectedVideoAnalyseShapeID(ContainerHandle container) {
    return OnContainer(container, [](CVideoAnalyseContainer& found) { return found.GetSelectedShape(); });
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeShowName(ContainerHandle container, ShapeID shape, const char* text) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        found.SetShowName(shape, text);
        return ToBool32(true);
    });
}

Bool32 RULECANVAS_CALL ShowVideoAnalyseShape(ContainerHandle container, ShapeID shape, Bool32 show) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        found.ShowShape(shape, ReadBool(show));
        return ToBool32(true);
    });
}

Bool32 RULECANVAS_CALL SetContainerTranslateDelegate(ContainerHandle container,
                                                     const ContainerTranslateDelegate* delegate) {
    return PassOn(container, delegate, &CVideoAnalyseContainer::SetTranslateDelegate);
}

Bool32 RULECANVAS_CALL SetVideoAnalyseContainerTip(ContainerHandle container, ViewID view, const char* tip) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        found.SetTip(view, tip);
        return ToBool32(true);
    });
}

Bool32 RULECANVAS_CALL InvalidateAllShape(ContainerHandle container) {
    return OnContainer(container, [](CVideoAnalyseContainer& found) {
        found.InvalidateAll();
        return ToBool32(true);
    });
}

Bool32 RULECANVAS_CALL SetAdjustBoxbShow(ContainerHandle container, ShapeID shape, Bool32 show) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        found.ShowAdjustBox(shape, ReadBool(show));
        return ToBool32(true);
    });
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeColor(ContainerHandle container, ShapeID shape, int32_t red, int32_t green,
                                                 int32_t blue, Bool32 selectedColour) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        return ToBool32(found.SetShapeColor(shape, red, green, blue, ReadBool(selectedColour)));
    });
}

Bool32 RULECANVAS_CALL SetVideoAnalyseShapeMaxPtNum(ContainerHandle container, ShapeID shape, int32_t maximum,
                                                    int32_t minimum) {
    return OnContainer(container, [&](CVideoAnalyseContainer& found) {
        return ToBool32(found.SetShapeMaxPtNum(shape, maximum, minimum));
    });
}

void RULECANVAS_CALL SetPixelCount(ContainerHandle container, int32_t width, int32_t height) {
    OnContainer(container, [&](CVideoAnalyseContainer& found) { found.SetPixelCount(width, height); });
}

void RULECANVAS_CALL GetVideoAnalyseAllShapestates(char* buffer, int32_t size) {
    Guarded([&] { CopyLine(StateReport(registry.All()), buffer, size); });
}

} // extern "C"

} // namespace rulecanvas
