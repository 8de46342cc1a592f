// Configurations and styles as a host could pass them. An input is four fields, divided by line feeds: a letter for the
// type, the name, the option, and the configuration, which may contain line feeds.
#include "shape_types.h"

#include <rulecanvas/host.hpp>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace rulecanvas;

constexpr ViewID View = 1;

void Require(bool met) {
    if (!met) {
        std::abort();
    }
}

std::string TakeLine(std::string& text) {
    const size_t end = text.find('\n');
    const std::string line = text.substr(0, end);
    text.erase(0, end == std::string::npos ? end : end + 1);
    return line;
}

ShapeID Add(Container& container, const char* type, const std::string& name, const std::string& option,
            const std::string& configuration) {
    ShapeSettings settings;
    settings.view = View;
    settings.type = type;
    settings.name = name.empty() ? nullptr : name.c_str();
    settings.option = option.c_str();
    settings.configuration = configuration.c_str();
    return container.AddShape(settings);
}

void Paint(Container& container, ShapeID shape, int32_t direction) {
    Surface surface;
    container.SetCaption(shape, "caption");
    container.Paint(View, surface);
    container.SetDirection(shape, direction);
    container.SelectShape(shape, false);
    container.Paint(View, surface);
}

std::string Read(const Container& container, ShapeID shape) {
    static char buffer[1 << 16];
    const bool copied = GetVideoAnalyseShapeConfigData(container.Handle(), shape, buffer, sizeof(buffer)) != 0;
    return copied ? buffer : "";
}

/// The text must arrive whole in every buffer that is large enough for it, and in no other.
void ReadIntoBuffers(const Container& container, ShapeID shape, const std::string& text) {
    const auto length = static_cast<int32_t>(text.size());
    for (const int32_t size : {-1, 0, 1, length - 1, length, length + 1, length + 2}) {
        std::vector<char> buffer(static_cast<size_t>(size < 0 ? 0 : size), '#');
        const Bool32 copied = GetVideoAnalyseShapeConfigData(container.Handle(), shape, buffer.data(), size);
        Require(copied == 0 ? size <= length : size >= length);
        Require(copied == 0 ? buffer == std::vector<char>(buffer.size(), '#')
                            : text == std::string(buffer.data(), text.size()));
    }
}

void Click(Container& container, float x, float y) {
    container.SendMouse(MouseCode::LeftDown, View, x, y);
    container.SendMouse(MouseCode::Moved, View, x + 20.0F, y + 10.0F);
    container.SendMouse(MouseCode::LeftUp, View, x + 20.0F, y + 10.0F);
    container.SendMouse(MouseCode::RightDown, View, x + 20.0F, y + 10.0F);
}

Container& View800x600() {
    static Container container;
    static const bool ready = container.OnClientRect([](ViewID) {
        return ClientRect{0, 0, 800, 600};
    }) && container.Enable();
    Require(ready);
    return container;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string input(reinterpret_cast<const char*>(data), size);
    const std::string letter = TakeLine(input);
    const char* const type = fuzz::ShapeTypes.at((letter.empty() ? 0U : uint8_t(letter[0])) % fuzz::ShapeTypes.size());
    const std::string name = TakeLine(input);
    const std::string option = TakeLine(input);

    Container& container = View800x600();
    const ShapeID shape = Add(container, type, name, option, input);
    if (shape != 0) {
        Paint(container, shape, static_cast<int32_t>(size % 8) - 2);
        const std::string text = Read(container, shape);
        if (!text.empty()) {
            ReadIntoBuffers(container, shape, text);
            const ShapeID loaded = Add(container, type, name, option, text);
            Require(loaded != 0);
            container.DeleteShape(loaded);
        }
        Click(container, 0.0F, 0.0F);
        Click(container, 400.0F, 300.0F);
        Require(!AllShapeStates().empty());
    }
    container.DeleteAllShapes();
    return 0;
}
