#include "support/scenario_host.h"

#include <string>
#include <utility>

namespace rulecanvas::test {
namespace {

/// The text behind `key` up to `end`; empty without the key.
std::string Field(const std::string& text, const std::string& key, char end) {
    const size_t at = text.find(key);
    if (at == std::string::npos) {
        return "";
    }
    const size_t begin = at + key.size();
    return text.substr(begin, text.find(end, begin) - begin);
}

/// Takes the event apart, writes it anew as documented, and shortens it only when both are the same to the letter.
std::string Shortened(const std::string& event) {
    const std::string id = Field(event, "\"ShapeID\":", '.');
    const std::string name = Field(event, "\"ShapeName\":\"", '"');
    const std::string previous = Field(event, "\"PreShapeState\":", ',');
    const std::string next = Field(event, "\"ShapeState\":", '}');
    const std::string shape = "\"ShapeID\":" + id + ".0,\"ShapeName\":\"" + name + "\"";
    const std::string begin = "{\"EventName\":\"label\",\"EventParam\":{";
    if (event == begin + shape + "}}\n") {
        return "select " + name;
    }
    if (event == begin + "\"PreShapeState\":" + previous + "," + shape + ",\"ShapeState\":" + next + "}}\n") {
        return "state " + name + " " + previous + ">" + next;
    }
    return event;
}

} // namespace

ScenarioHost::ScenarioHost(int width, int height)
    : clientRect{0, 0, width, height},
      hostObject([this] { Write("redraw"); }, [this](uint32_t value) { Write("hint " + std::to_string(value)); }),
      container(&hostObject) {
    container.OnNotify([this](const char* text) {
        lastEventText = text;
        Write(Shortened(lastEventText));
    });
    container.OnClientRect([this](ViewID view) {
        Tell("client rect");
        return view == 0 ? rectOfViewZero.value_or(clientRect) : clientRect;
    });
    container.OnCapture([this](bool take) {
        Write(take ? "capture on" : "capture off");
        return true;
    });
    container.Enable();
}

void ScenarioHost::Write(const std::string& entry) {
    log.push_back(entry);
    Tell(entry);
}

void ScenarioHost::Tell(const std::string& entry) {
    if (onEntry) {
        onEntry(entry);
    }
}

Lines ScenarioHost::TakeLog() {
    return std::exchange(log, {});
}

ShapeID ScenarioHost::Add(const char* type, const std::string& config, const std::string& option, const char* name) {
    const ShapeID shape = container.AddShape({TheView, type, "label", name, config.c_str(), option.c_str()});
    log.clear();
    return shape;
}

Lines ScenarioHost::Paint(ViewID view) {
    return Drawn([&](auto& surface) { container.Paint(view, surface); }, [this] { Tell("drawing"); });
}

std::string ScenarioHost::Config(ShapeID shape) {
    std::string text = container.Configuration(shape).str();
    if (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    return text;
}

} // namespace rulecanvas::test
