#include "shape/style.h"

#include "shape/json_text.h"
#include "shape/text.h"

#include <string>
#include <string_view>
#include <tuple>

namespace rulecanvas {
namespace {

constexpr int NoDirection = -1;
constexpr int HighestDirection = 5;

void ReadFlag(const Json::Value& root, const char* key, bool& flag) {
    const Json::Value& value = MemberOf(root, key);
    if (value.isBool()) {
        flag = value.asBool();
    }
}

template <class Number>
void ReadInteger(const Json::Value& root, const char* key, Number& number) {
    const Json::Value& value = MemberOf(root, key);
    if (IsPlainInteger(value)) {
        number = static_cast<Number>(value.asInt());
    }
}

void ReadMosaic(const Json::Value& root, ShapeStyle& style) {
    const Json::Value& mosaic = MemberOf(root, "mosaic");
    if (mosaic.isNull()) {
        return;
    }
    style.mosaicEnable = mosaic["enable"].asBool();
    const Json::Value& size = mosaic["size"];
    style.mosaicSize = size.isNull() ? ShapeStyle().mosaicSize : size.asInt();
}

void ReadDirection(const Json::Value& root, ShapeStyle& style) {
    const Json::Value& value = MemberOf(root, "Direction");
    if (IsPlainInteger(value)) {
        const int direction = value.asInt();
        style.direction = direction < NoDirection || direction > HighestDirection ? NoDirection : direction;
    }
}

void SetColour(const std::string& name, const ColorF& colour, ShapeStyle& style) {
    if (name == "SelColor") {
        style.selColor = colour;
    } else if (name == "UnSelColor") {
        style.unSelColor = colour;
    } else if (name == "FillColor") {
        style.fillColor = colour;
    } else if (name == "FontColor") {
        style.textStyle.fontColor = colour;
    }
}

void ReadColour(const Json::Value& entry, ShapeStyle& style) {
    if (!entry.isObject() || !entry.isMember("ColorName")) {
        return;
    }
    const std::string name = entry["ColorName"].asString();
    if (entry["R"].isNull() || entry["G"].isNull() || entry["B"].isNull()) {
        return;
    }
    const auto component = [&](const char* key) { return static_cast<float>(entry[key].asInt()); };
    SetColour(name, OpaqueColour(component("R"), component("G"), component("B")), style);
}

void ReadColours(const Json::Value& root, ShapeStyle& style) {
    const Json::Value& colours = MemberOf(root, "ShapeColor");
    const unsigned count = colours.isArray() || colours.isObject() ? colours.size() : 0;
    for (unsigned i = 0; i < count; ++i) {
        ReadColour(colours[i], style);
    }
}

auto ValuesOf(const ColorF& colour) {
    return std::tie(colour.alpha, colour.red, colour.green, colour.blue);
}

auto ValuesOf(const ShapeStyle& style) {
    return std::tuple_cat(ValuesOf(style.selColor), ValuesOf(style.unSelColor), ValuesOf(style.fillColor),
                          ValuesOf(style.textStyle.fontColor),
                          std::make_tuple(std::string_view(style.textStyle.fontFace)),
                          std::tie(style.textStyle.fontSize, style.lineThickness, style.unSelLineThickness,
                                   style.penStyle, style.direction, style.hostDirection, style.mosaicSize,
                                   style.mosaicEnable, style.canAdjust, style.canMove, style.xArrowLine, style.isFill));
}

} // namespace

bool operator==(const ShapeStyle& a, const ShapeStyle& b) {
    return ValuesOf(a) == ValuesOf(b);
}

void ReadStyle(const char* text, ShapeStyle& style) {
    Json::Value root;
    if (IsEmpty(text) || !ParseJson(text, root)) {
        return;
    }
    ReadFlag(root, "IsFill", style.isFill);
    ReadMosaic(root, style);
    ReadFlag(root, "CanAdjust", style.canAdjust);
    ReadFlag(root, "CanMove", style.canMove);
    ReadFlag(root, "XArrowLine", style.xArrowLine);
    ReadInteger(root, "LineThickness", style.lineThickness);
    ReadInteger(root, "UnSelLineThickness", style.unSelLineThickness);
    ReadInteger(root, "PenStyle", style.penStyle);
    ReadDirection(root, style);
    ReadInteger(root, "FontSize", style.textStyle.fontSize);
    ReadColours(root, style);
}

} // namespace rulecanvas
