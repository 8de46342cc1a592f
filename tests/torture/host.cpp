#include "host.h"

#include "allocations.h"
#include "check.h"

#include <array>
#include <cstdlib>
#include <sstream>

namespace rulecanvas::torture {
namespace {

constexpr ViewID OtherView = TheView + 1;
constexpr float TextExtent = 12.0F;

template <class Function>
void* AsWord(Function* function) {
    return reinterpret_cast<void*>(function);
}

/// The number behind "ShapeID": in a notification.
ShapeID SpeakerOf(const std::string& text) {
    const char* const key = "\"ShapeID\":";
    const size_t at = text.find(key);
    return at == std::string::npos ? 0 : static_cast<ShapeID>(std::strtod(text.c_str() + at + 10, nullptr));
}

/// A state notification shortened to its two states.
std::string StatesIn(const std::string& text) {
    const size_t before = text.find("\"PreShapeState\":");
    const size_t after = text.find("\"ShapeState\":");
    return before == std::string::npos || after == std::string::npos
               ? "select"
               : std::string("state ") + text[before + 16] + ">" + text[after + 13];
}

} // namespace

/// Every operation that draws or measures is a callback. Unlike those of Surface they may throw.
class Canvas final : public IContainerGraphics {
  public:
    explicit Canvas(Host& owner) : host(owner) {}

    void DrawLine(const PointF*, const PointF*, float, const ColorF*, int32_t) override { Hear(); }
    void DrawText(const PointF*, const TextStyle*, const char*, int32_t, int32_t) override { Hear(); }
    void DrawTextEx(const PointF*, const TextStyle*, const char*) override { Hear(); }
    void FillEllipse(const PointF*, const PointF*, float, ColorF, const ColorF*) override { Hear(); }
    void DrawEllipse(const PointF*, const PointF*, float, const ColorF*) override { Hear(); }
    void DrawRectangle(const PointF*, const PointF*, float, const ColorF*, int32_t) override { Hear(); }
    float MeasureText(TextStyle, const char*) override { return Hear(); }
    float MeasureTextHeight(TextStyle, const char*) override { return Hear(); }
    void DrawTextAtPoints(const char*, const PointF*, int32_t, ColorF, int32_t, ClientRect, int32_t) override {
        Hear();
    }
    void BeginLayer() override { Hear(); }
    void EndLayer(int32_t, int32_t) override { Hear(); }
    void SetLayerSize(int32_t, int32_t) override { Hear(); }
    void FillRectangle(const PointF*, const PointF*, const ColorF*) override { Hear(); }

  private:
    float Hear() {
        const InsideHost inHost;
        host.Hear(Callback::Drawing);
        return TextExtent;
    }

    Host& host;
};

const char* NameOf(Callback callback) {
    constexpr std::array<const char*, 6> names{"notify", "client rect", "capture", "hint", "redraw", "drawing"};
    return names.at(static_cast<size_t>(callback));
}

Host::Host() : object{nullptr, this} {
    using Table = std::array<void (*)(void*, uint32_t), RULECANVAS_HOST_REQUEST_REDRAW + 1>;
    static const Table table = [] {
        Table made{};
        made[RULECANVAS_HOST_SET_INTERACTION_HINT] = &Hint;
        made[RULECANVAS_HOST_REQUEST_REDRAW] = &RequestRedraw;
        return made;
    }();
    object.table = table.data();
    container = Call(&CreateVideoAnalyseContainer, static_cast<void*>(&object));
    SetDelegates(true);
    FetchHandlers();
    Call(&EnableVideoAnalyseContainer, container, Bool32{1});
}

Host::~Host() {
    inside = nullptr;
    if (alive) {
        Release();
    }
    for (const ContainerHandlerHolder& holder : {mouse, draw}) {
        if (holder.handler != nullptr) {
            holder.handler->table->destroy(holder.handler, 1);
        }
    }
}

void Host::SetDelegates(bool given) {
    const CDelegate none{nullptr, nullptr};
    const CDelegate notify = given ? CDelegate{this, AsWord(&Notify)} : none;
    const CDelegate rect = given ? CDelegate{this, AsWord(&GetClientRect)} : none;
    const CDelegate capture = given ? CDelegate{this, AsWord(&Capture)} : none;
    Call(&SetContainerNotifyEventDelegate, container, &notify);
    Call(&SetGetContainerRectClientDelegate, container, &rect);
    Call(&SetCtrlContainerWinMouseCaptureDelegate, container, &capture);
    Call(&SetAdjustPointCoordinateDelegate, container, &none);
    Call(&SetContainerTranslateDelegate, container, &none);
}

void Host::FetchHandlers() {
    Call(&GetContainerWinMouseEventHandler, container, &mouse);
    Call(&GetContainerDrawEventHandler, container, &draw);
}

void Host::Reset() {
    inside = nullptr;
    if (alive) {
        SetDelegates(true);
        FetchHandlers();
        Call(&EnableVideoAnalyseContainer, container, Bool32{1});
        Resize(800, 600);
        DeleteAll();
        Call(&SetPixelCount, container, int32_t{0}, int32_t{0});
        Call(&SetVideoAnalyseContainerTip, container, TheView, "");
    }
}

std::string Host::TakeLog() {
    std::string taken;
    taken.swap(log);
    return taken;
}

void Host::Forget() {
    endedShapes.clear();
    std::string().swap(log);
}

void Host::Hear(Callback callback) {
    Require(alive || (callback == Callback::Drawing && painting > 0), "a call after the release of the container");
    if (inside) {
        inside(callback);
    }
}

void Host::Notify(void* target, const char* text, Bool32 flag) {
    const InsideHost inHost;
    Require(flag == 0, "a flag of a notification");
    Host& host = *static_cast<Host*>(target);
    const std::string copy = text;
    Require(host.endedShapes.count(SpeakerOf(copy)) == 0, "a notification of a deleted shape");
    host.log += StatesIn(copy) + "; ";
    host.Hear(Callback::Notify);
    Require(copy == text, "a text that changes during the callback");
}

void Host::GetClientRect(void* target, ViewID /*view*/, ClientRect* out) {
    const InsideHost inHost;
    Host& host = *static_cast<Host*>(target);
    *out = host.clientRect;
    host.Hear(Callback::ClientRect);
}

Bool32 Host::Capture(void* target, Bool32 take) {
    const InsideHost inHost;
    Host& host = *static_cast<Host*>(target);
    Require(!host.shapes.empty() || host.adding > 0 || host.ending > 0, "a capture without any shape");
    host.captured = (take & 0xFFU) != 0;
    host.log += host.captured ? "on; " : "off; ";
    host.Hear(Callback::Capture);
    return 1;
}

void Host::Hint(void* object, uint32_t /*value*/) {
    const InsideHost inHost;
    static_cast<Object*>(object)->host->Hear(Callback::Hint);
}

void Host::RequestRedraw(void* object, uint32_t /*value*/) {
    const InsideHost inHost;
    static_cast<Object*>(object)->host->Hear(Callback::Redraw);
}

void Host::Send(uint32_t code, float x, float y, ViewID view, uint16_t key) {
    if (mouse.handler != nullptr) {
        const ContainerMouseEvent event{code, view, 0, x, y, 0, key};
        Call(mouse.handler->table->invoke, mouse.handler, uintptr_t{0}, reinterpret_cast<uintptr_t>(&event));
    }
}

void Host::Paint(ViewID view) {
    if (draw.handler != nullptr) {
        Canvas canvas(*this);
        IContainerGraphics& surface = canvas;
        ++painting;
        Call(draw.handler->table->invoke, draw.handler, uintptr_t{view}, reinterpret_cast<uintptr_t>(&surface));
        --painting;
    }
}

ShapeID Host::Add(const Figure& added, const char* configuration, const char* option, ViewID view) {
    ++adding;
    const ShapeID made =
        Call(&CreateMainVideoAnalyseShape, container, view, "label", added.type, "rule", configuration, option);
    --adding;
    if (made != 0 && alive) {
        shapes.insert(made);
    }
    return made;
}

template <class Ending>
void Host::End(std::set<ShapeID> ended, Ending call) {
    ++ending;
    if (call()) {
        endingShapes.insert(ended.begin(), ended.end());
    }
    if (--ending == 0) {
        for (const ShapeID shape : endingShapes) {
            shapes.erase(shape);
        }
        endedShapes.insert(endingShapes.begin(), endingShapes.end());
        endingShapes.clear();
    }
}

void Host::Delete(ShapeID shape) {
    End({shape}, [&] { return Call(&DeleteVideoAnalyseShape, container, shape) != 0; });
}

void Host::DeleteAll() {
    End(shapes, [&] {
        Call(&DeleteAllVideoAnalyseShape, container);
        return true;
    });
}

void Host::Release() {
    const bool first = !releasing;
    releasing = true;
    End(shapes, [&] {
        Call(&ReleaseVideoAnalyseContainer, container);
        return true;
    });
    alive = alive && !first;
}

void Host::Copy() {
    std::array<char, 4096> text{};
    Call(&GetVideoAnalyseShapeConfigData, container, subject, text.data(), static_cast<int32_t>(text.size()));
    Delete(Add(*figure, text.data(), figure->option));
}

void Host::DoAll(const std::string& steps) {
    std::istringstream in(steps);
    for (std::string step; in >> step;) {
        Do(step);
    }
}

void Host::Do(const std::string& step) {
    char* rest = nullptr;
    const float x = std::strtof(step.c_str() + 1, &rest);
    const float y = *rest == ',' ? std::strtof(rest + 1, nullptr) : 0.0F;
    switch (step[0]) {
    case 'p':
        return Send(RULECANVAS_MOUSE_LEFT_DOWN, x, y);
    case 'u':
        return Send(RULECANVAS_MOUSE_LEFT_UP, x, y);
    case 'm':
        return Send(RULECANVAS_MOUSE_MOVED, x, y);
    case 'r':
        return Send(RULECANVAS_MOUSE_RIGHT_DOWN, x, y);
    case 'R':
        return Send(RULECANVAS_MOUSE_RIGHT_UP, x, y);
    case 'e':
        return Send(RULECANVAS_MOUSE_MOVED_EVENT, x, y);
    case 'q':
        return Send(RULECANVAS_MOUSE_CURSOR_QUERY, x, y);
    case 'a':
        return Send(RULECANVAS_MOUSE_ALT_RIGHT_DOWN, x, y);
    case 'k':
        return Send(RULECANVAS_MOUSE_KEY_DOWN, 0, 0, TheView, static_cast<uint16_t>(x));
    case 'P':
        Paint(OtherView);
        return Paint();
    case 'S':
        return Resize(static_cast<int32_t>(x), static_cast<int32_t>(y));
    case 'F':
        Call(&InvalidateAllShape, container);
        return;
    case 'A':
        subject = Add(*figure, "", figure->option);
        Call(&SetVideoAnalyseShapeShowName, container, subject, "caption");
        return;
    case 'B':
        for (const char* option : {"", R"({"mosaic":{"enable":[1]}})"}) {
            Delete(Add(*figure, "{", option));
        }
        return;
    case 'C':
        return Copy();
    case 'W':
        Call(&RedrawVideoAnalyseShape, container, subject);
        return;
    case 'D':
        return Delete(subject);
    case 'X':
        return DeleteAll();
    default:
        Require(false, "a step that nobody knows");
    }
}

std::string DrawFresh(Host& host, const Figure& figure) {
    host.Use(figure);
    host.TakeLog();
    host.DoAll("A");
    host.DoAll(figure.drawing);
    std::array<char, 4096> text{};
    host.Call(&GetVideoAnalyseShapeConfigData, host.Handle(), host.Subject(), text.data(),
              static_cast<int32_t>(text.size()));
    host.DoAll("D");
    return host.TakeLog() + text.data();
}

std::vector<std::string> LifeOf(const Figure& figure) {
    const auto at = [](char verb, const PointF& place, int offset) {
        return verb + std::to_string(static_cast<int>(place.x) + offset) + "," +
               std::to_string(static_cast<int>(place.y) + offset) + " ";
    };
    const PointF& v = figure.vertex;
    const PointF& b = figure.body;
    const std::string drawing = figure.drawing + std::string(" ");
    const std::string drag =
        at('p', v, 0) + at('m', v, 9) + "P " + at('u', v, 9) + at('p', v, 9) + at('m', v, 0) + at('u', v, 0);
    const std::string move = at('p', b, 0) + at('m', b, 2) + at('e', b, 3) + at('q', b, 4) + "F " + at('u', b, 4) +
                             at('p', b, 4) + at('m', b, 0) + at('u', b, 0);
    const std::string leave = "p790,590 u790,590 ";
    const std::string refit = "S400,300 F P S0,0 F P S800,600 F P ";
    const std::string anew = at('p', b, 0) + at('m', b, 1) + "W " + at('u', b, 0) + drawing;
    const std::string remove = at('a', b, 0) + at('R', b, 0) + at('r', b, 0) + "W " + drawing + "P " + at('p', b, 0);
    const std::string together = "A " + drawing + at('p', b, 0) + "A P X P";
    std::istringstream in("B A " + drawing + "P C " + drag + move + leave + "k27 k65 " + refit + anew + remove + "D " +
                          together);
    std::vector<std::string> steps;
    for (std::string step; in >> step;) {
        steps.push_back(step);
    }
    return steps;
}

} // namespace rulecanvas::torture
