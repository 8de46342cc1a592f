// Sequences of calls and events as no sane host would make them: stale handles, any number, calls from inside
// callbacks that delete the speaking figure or release its container.
#include "shape_types.h"

#include <rulecanvas/handlers.hpp>
#include <rulecanvas/surface.hpp>

#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace rulecanvas;

constexpr size_t ContainerCount = 2;
constexpr size_t ShapeCount = 6;
constexpr int DeepestCallback = 3;
constexpr int LongestSequence = 200;

class Host {
  public:
    explicit Host(FuzzedDataProvider& provided) : input(provided) {
        for (size_t place = 0; place < ContainerCount; ++place) {
            Make(place);
        }
    }

    ~Host() {
        depth = DeepestCallback; // no more calls from inside callbacks
        for (const ContainerHandle container : containers) {
            ReleaseVideoAnalyseContainer(container);
        }
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    void Run() {
        for (int step = 0; step < LongestSequence && input.remaining_bytes() > 0; ++step) {
            Call();
        }
    }

  private:
    static void Notify(void* target, const char* text, Bool32) {
        Host& host = *static_cast<Host*>(target);
        host.Answer();
        host.lastNotification = text; // still readable whatever the answer did
    }
    static void GetClientRect(void* target, ViewID, ClientRect* out) {
        Host& host = *static_cast<Host*>(target);
        *out = host.clientRect;
        host.Answer();
    }
    static Bool32 Capture(void* target, Bool32) {
        static_cast<Host*>(target)->Answer();
        return 0xFFFFFF00U;
    }
    static void Operation(void* target, uint32_t) { static_cast<HostObject*>(target)->host->Answer(); }

    /// The library finds its two operations through the first word.
    struct HostObject {
        using Table = std::array<void (*)(void*, uint32_t), RULECANVAS_HOST_REQUEST_REDRAW + 1>;

        explicit HostObject(Host* owner) : host(owner) {
            static const Table shared = [] {
                Table made{};
                made[RULECANVAS_HOST_SET_INTERACTION_HINT] = &Host::Operation;
                made[RULECANVAS_HOST_REQUEST_REDRAW] = &Host::Operation;
                return made;
            }();
            table = shared.data();
        }

        const Table::value_type* table;
        Host* host;
    };

    class Canvas final : public Surface {
      public:
        explicit Canvas(Host& owner) : host(owner) {}
        void StrokeRectangle(const PointF&, const PointF&, float, const ColorF&, int32_t) override { host.Answer(); }
        void StrokeLine(const PointF&, const PointF&, float, const ColorF&, int32_t) override { host.Answer(); }
        float StringWidth(const TextStyle&, const char*) override { return host.Coordinate(); }

      private:
        Host& host;
    };

    void Make(size_t place) {
        const ContainerHandle container = CreateVideoAnalyseContainer(&hostObject);
        const CDelegate notify{this, reinterpret_cast<void*>(&Notify)};
        const CDelegate rect{this, reinterpret_cast<void*>(&GetClientRect)};
        const CDelegate capture{this, reinterpret_cast<void*>(&Capture)};
        SetContainerNotifyEventDelegate(container, &notify);
        SetGetContainerRectClientDelegate(container, &rect);
        SetCtrlContainerWinMouseCaptureDelegate(container, &capture);
        EnableVideoAnalyseContainer(container, 1);
        containers[place] = container;
        mice[place] = MouseHandler(container);
        draws[place] = DrawHandler(container);
    }

    /// What the host does when it is called back: mostly nothing.
    void Answer() {
        if (depth < DeepestCallback && input.ConsumeIntegralInRange(0, 7) == 0) {
            ++depth;
            Call();
            --depth;
        }
    }

    float Coordinate() {
        switch (input.ConsumeIntegralInRange(0, 11)) {
        case 0:
            return std::numeric_limits<float>::quiet_NaN();
        case 1:
            return std::numeric_limits<float>::infinity();
        case 2:
            return -std::numeric_limits<float>::max();
        case 3:
            return 1e10F;
        default:
            return static_cast<float>(input.ConsumeIntegralInRange(-2, 40)) * 4.25F;
        }
    }

    int32_t Number() {
        return input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : input.ConsumeIntegral<int8_t>();
    }
    size_t AnyPlace() { return input.ConsumeIntegralInRange<size_t>(0, ContainerCount - 1); }
    /// Live, released, or never made.
    ContainerHandle AnyContainer() {
        const auto index = input.ConsumeIntegralInRange<size_t>(0, ContainerCount);
        return index < ContainerCount ? containers[index] : input.ConsumeIntegral<ContainerHandle>();
    }
    ShapeID AnyShape() {
        const auto index = input.ConsumeIntegralInRange<size_t>(0, ShapeCount);
        return index < ShapeCount ? shapes[index] : input.ConsumeIntegral<ShapeID>();
    }

    void Resize() {
        const auto side = [&] {
            const int32_t sides[] = {0, -1, 1, 9, 100, 160, std::numeric_limits<int32_t>::min()};
            return input.PickValueInArray(sides);
        };
        clientRect = ClientRect{side() / 100, side() / 100, side(), side()};
    }

    void Create() {
        static const char* const configurations[] = {
            "", "{\"a\":[[100,100],[7000,7000]]}", "{\"a\":[[1,1],[8000,100],[8000,8000],[1,8000]]}",
            "{\"a\":[[5,5,9,9],[1,2,3,4],[1,2,3,4],[5,6,7,8]]}", "{\"a\":[9,9]}"};
        static const char* const options[] = {"",
                                              "EnableRBtnDelete",
                                              "Convex",
                                              "solid",
                                              "3",
                                              "Horizon",
                                              "{\"XArrowLine\":true,\"Direction\":2}",
                                              "{\"LineThickness\":-1}"};
        const ShapeID made = CreateMainVideoAnalyseShape(
            AnyContainer(), input.ConsumeIntegralInRange(0U, 1U), "label", input.PickValueInArray(fuzz::ShapeTypes),
            "a", input.PickValueInArray(configurations), input.PickValueInArray(options));
        shapes[input.ConsumeIntegralInRange<size_t>(0, ShapeCount - 1)] = made;
    }

    void Send(uint32_t code) {
        mice[AnyPlace()](ContainerMouseEvent{code, input.ConsumeIntegralInRange(0U, 1U), 0, Coordinate(), Coordinate(),
                                             0, static_cast<uint16_t>(input.ConsumeBool() ? 27 : 0)});
    }

    void Read() {
        std::vector<char> buffer(input.ConsumeIntegralInRange<size_t>(0, 100));
        const auto size = static_cast<int32_t>(buffer.size());
        GetVideoAnalyseShapeConfigData(AnyContainer(), AnyShape(), buffer.data(), size);
        GetVideoAnalyseAllShapestates(buffer.data(), size);
    }

    void Call();

    FuzzedDataProvider& input;
    HostObject hostObject{this};
    ClientRect clientRect{0, 0, 160, 100};
    std::array<ContainerHandle, ContainerCount> containers{};
    std::array<ShapeID, ShapeCount> shapes{};
    std::array<MouseHandler, ContainerCount> mice;
    std::array<DrawHandler, ContainerCount> draws;
    int depth = 0;
    std::string lastNotification;
};

void Host::Call() {
    switch (input.ConsumeIntegralInRange(0, 30)) {
    case 0:
        ReleaseVideoAnalyseContainer(AnyContainer());
        break;
    case 1: {
        const size_t place = AnyPlace();
        ReleaseVideoAnalyseContainer(std::exchange(containers[place], 0));
        if (containers[place] == 0) { // the release may call back here
            Make(place);
        }
        break;
    }
    case 2:
    case 3:
    case 4:
        Create();
        break;
    case 5:
        DeleteVideoAnalyseShape(AnyContainer(), AnyShape());
        break;
    case 6:
        DeleteAllVideoAnalyseShape(AnyContainer());
        break;
    case 7:
        SelectVideoAnalyseShape(AnyContainer(), AnyShape(), input.ConsumeIntegral<Bool32>());
        break;
    case 8:
        SetVideoAnalyseShapeDirection(AnyContainer(), AnyShape(), Number());
        break;
    case 9:
        EnableVideoAnalyseContainer(AnyContainer(), input.ConsumeIntegralInRange(0U, 3U));
        break;
    case 10:
        Read();
        break;
    case 11:
        EnableVideoAnalyseShape(AnyContainer(), AnyShape(), input.ConsumeIntegral<Bool32>());
        break;
    case 12:
        RedrawVideoAnalyseShape(AnyContainer(), AnyShape());
        break;
    case 13:
        SetVideoAnalyseShapeShowName(AnyContainer(), AnyShape(), input.ConsumeRandomLengthString(8).c_str());
        break;
    case 14:
        ShowVideoAnalyseShape(AnyContainer(), AnyShape(), input.ConsumeIntegral<Bool32>());
        break;
    case 15:
        SetVideoAnalyseContainerTip(AnyContainer(), input.ConsumeIntegralInRange(0U, 2U), "tip");
        break;
    case 16:
        InvalidateAllShape(AnyContainer());
        break;
    case 17:
        SetVideoAnalyseShapeColor(AnyContainer(), AnyShape(), Number(), Number(), Number(), 1);
        break;
    case 18:
        SetVideoAnalyseShapeMaxPtNum(AnyContainer(), AnyShape(), Number(), Number());
        break;
    case 19:
        SetPixelCount(AnyContainer(), Number(), Number());
        break;
    case 20:
        AddVideoAnalyseShape(AnyContainer(), AnyShape(), 1, 2, 3);
        break;
    case 21:
        Resize();
        break;
    case 22: {
        Canvas canvas(*this);
        draws[AnyPlace()](input.ConsumeIntegralInRange(0U, 1U), canvas);
        break;
    }
    case 23:
        Send(input.ConsumeIntegral<uint8_t>());
        break;
    case 24:
    case 25:
        Send(RULECANVAS_MOUSE_LEFT_DOWN);
        break;
    case 26:
    case 27:
        Send(RULECANVAS_MOUSE_LEFT_UP);
        break;
    case 28:
        Send(RULECANVAS_MOUSE_RIGHT_DOWN);
        break;
    default:
        Send(RULECANVAS_MOUSE_MOVED);
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider input(data, size);
    Host host(input);
    host.Run();
    return 0;
}
