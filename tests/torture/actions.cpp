#include "actions.h"

#include <array>

namespace rulecanvas::torture {
namespace {

template <uint32_t code>
void SendToVertex(Host& host, const Figure& figure) {
    host.Send(code, figure.vertex.x, figure.vertex.y);
}

template <uint32_t code>
void SendToBody(Host& host, const Figure& figure) {
    host.Send(code, figure.body.x, figure.body.y, TheView, code == RULECANVAS_MOUSE_KEY_DOWN ? 27 : 0);
}

template <uint32_t code>
void SendOutside(Host& host, const Figure& /*figure*/) {
    host.Send(code, -50, 700);
}

template <auto Function, uint32_t value>
void Set(Host& host, const Figure& /*figure*/) {
    host.Call(Function, host.Handle(), host.Subject(), Bool32{value});
}

void Read(Host& host, const Figure& /*figure*/) {
    std::array<char, 4096> text{};
    const auto size = static_cast<int32_t>(text.size());
    host.Call(&GetVideoAnalyseShapeConfigData, host.Handle(), host.Subject(), text.data(), size);
    host.Call(&GetVideoAnalyseAllShapestates, text.data(), size);
    host.Call(&GetSelectedVideoAnalyseShapeID, host.Handle());
}

void Configure(Host& host, const Figure& /*figure*/) {
    host.Call(&SetVideoAnalyseShapeDirection, host.Handle(), host.Subject(), int32_t{2});
    host.Call(&SetVideoAnalyseShapeShowName, host.Handle(), host.Subject(), "another caption, too long to be kept");
    host.Call(&SetVideoAnalyseShapeColor, host.Handle(), host.Subject(), int32_t{1}, int32_t{2}, int32_t{3}, Bool32{1});
    host.Call(&SetPixelCount, host.Handle(), int32_t{640}, int32_t{480});
    host.Call(&AddVideoAnalyseShape, host.Handle(), host.Subject(), 1U, 2U, 3U);
}

void LimitPoints(Host& host, const Figure& /*figure*/) {
    host.Call(&SetVideoAnalyseShapeMaxPtNum, host.Handle(), host.Subject(), int32_t{1}, int32_t{1});
}

void Tip(Host& host, const Figure& /*figure*/) {
    host.Call(&SetVideoAnalyseContainerTip, host.Handle(), TheView, "tip");
}

void AddAnother(Host& host, const Figure& figure) {
    host.Add(figure, "", figure.option);
}

void AddRefused(Host& host, const Figure& figure) {
    host.Add(figure, "[", R"({"mosaic":{"enable":[1]}})");
}

void PressAnew(Host& host, const Figure& figure) {
    host.Do("W");
    host.Send(RULECANVAS_MOUSE_LEFT_DOWN, figure.vertex.x, figure.vertex.y);
}

void DragWhole(Host& host, const Figure& figure) {
    const PointF& place = figure.body;
    host.Send(RULECANVAS_MOUSE_LEFT_DOWN, place.x, place.y);
    host.Send(RULECANVAS_MOUSE_MOVED, place.x + 2, place.y + 2);
    host.Send(RULECANVAS_MOUSE_LEFT_UP, place.x + 2, place.y + 2);
}

/// A container of the host's beside the one that speaks.
void UseAnotherContainer(Host& host, const Figure& /*figure*/) {
    const ContainerHandle other = host.Call(&CreateVideoAnalyseContainer, static_cast<void*>(nullptr));
    host.Call(&ReleaseVideoAnalyseContainer, other);
}

template <int32_t width, int32_t height>
void Resize(Host& host, const Figure& /*figure*/) {
    host.Resize(width, height);
    host.Do("F");
}

template <char step>
void Do(Host& host, const Figure& /*figure*/) {
    host.Do(std::string(1, step));
}

} // namespace

const std::vector<Action>& Actions() {
    static const std::vector<Action> actions{
        {"delete", [](Host& host, const Figure&) { host.Delete(host.Subject()); }},
        {"delete all", [](Host& host, const Figure&) { host.DeleteAll(); }},
        {"release", [](Host& host, const Figure&) { host.Release(); }},
        {"redraw", &Do<'W'>},
        {"redraw and press", &PressAnew},
        {"refit", &Do<'F'>},
        {"paint", &Do<'P'>},
        {"smaller", &Resize<400, 300>},
        {"no size", &Resize<0, 0>},
        {"add", &AddAnother},
        {"add refused", &AddRefused},
        {"another container", &UseAnotherContainer},
        {"read", &Read},
        {"configure", &Configure},
        {"limit points", &LimitPoints},
        {"tip", &Tip},
        {"fetch handlers", [](Host& host, const Figure&) { host.FetchHandlers(); }},
        {"clear delegates", [](Host& host, const Figure&) { host.SetDelegates(false); }},
        {"set delegates", [](Host& host, const Figure&) { host.SetDelegates(true); }},
        {"disable the container",
         [](Host& host, const Figure&) { host.Call(&EnableVideoAnalyseContainer, host.Handle(), Bool32{0}); }},
        {"select", &Set<&SelectVideoAnalyseShape, 1>},
        {"deselect", &Set<&SelectVideoAnalyseShape, 0>},
        {"enable", &Set<&EnableVideoAnalyseShape, 1>},
        {"disable", &Set<&EnableVideoAnalyseShape, 0>},
        {"hide", &Set<&ShowVideoAnalyseShape, 0>},
        {"show handles", &Set<&SetAdjustBoxbShow, 1>},
        {"hide handles", &Set<&SetAdjustBoxbShow, 0>},
        {"press the vertex", &SendToVertex<RULECANVAS_MOUSE_LEFT_DOWN>},
        {"press the body", &SendToBody<RULECANVAS_MOUSE_LEFT_DOWN>},
        {"press outside", &SendOutside<RULECANVAS_MOUSE_LEFT_DOWN>},
        {"release the button", &SendToBody<RULECANVAS_MOUSE_LEFT_UP>},
        {"release the button outside", &SendOutside<RULECANVAS_MOUSE_LEFT_UP>},
        {"move", &SendToBody<RULECANVAS_MOUSE_MOVED>},
        {"move outside", &SendOutside<RULECANVAS_MOUSE_MOVED>},
        {"drag", &DragWhole},
        {"right press", &SendToBody<RULECANVAS_MOUSE_RIGHT_DOWN>},
        {"right press on the vertex", &SendToVertex<RULECANVAS_MOUSE_RIGHT_DOWN>},
        {"right release", &SendToBody<RULECANVAS_MOUSE_RIGHT_UP>},
        {"event 6", &SendToBody<RULECANVAS_MOUSE_MOVED_EVENT>},
        {"event 9", &SendToBody<RULECANVAS_MOUSE_CURSOR_QUERY>},
        {"event 10", &SendToBody<RULECANVAS_MOUSE_ALT_RIGHT_DOWN>},
        {"event 12", &SendToBody<12>},
        {"Escape", &SendToBody<RULECANVAS_MOUSE_KEY_DOWN>},
    };
    return actions;
}

} // namespace rulecanvas::torture
