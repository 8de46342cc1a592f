#include "shape/json_text.h"
#include "shape/shape.h"
#include "shape/text.h"

namespace rulecanvas {
namespace {

constexpr int ArrowPathMaximum = 20;
constexpr int DefaultMosaicSize = 8;

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

} // namespace

/// Takes the style keys of a document over into a shape, each only when its value has the right type. Parts of "mosaic"
/// and of the colours are converted instead, and raise what the conversion raises.
class StyleReader {
  public:
    StyleReader(const Json::Value& document, CVideoAnalyseShape& styled) : root(document), shape(styled) {}

    void Apply() {
        ReadFlag(root, "IsFill", shape.isFill);
        ApplyMosaic();
        ReadFlag(root, "CanAdjust", shape.canAdjust);
        ReadFlag(root, "CanMove", shape.canMove);
        ApplyArrowPath();
        ReadInteger(root, "LineThickness", shape.lineThickness);
        ReadInteger(root, "UnSelLineThickness", shape.unSelLineThickness);
        ReadInteger(root, "PenStyle", shape.penStyle);
        ApplyDirection();
        ReadInteger(root, "FontSize", shape.textStyle.size);
        ApplyColours();
    }

  private:
    void ApplyMosaic() {
        const Json::Value& mosaic = MemberOf(root, "mosaic");
        if (mosaic.isNull()) {
            return;
        }
        shape.mosaicEnable = mosaic["enable"].asBool();
        const Json::Value& size = mosaic["size"];
        shape.mosaicSize = size.isNull() ? DefaultMosaicSize : size.asInt();
    }

    void ApplyArrowPath() {
        bool arrowPath = false;
        ReadFlag(root, "XArrowLine", arrowPath);
        if (arrowPath) {
            shape.maxPtNum = ArrowPathMaximum;
        }
    }

    void ApplyDirection() {
        constexpr int none = -1;
        constexpr int highest = 5;
        const Json::Value& value = MemberOf(root, "Direction");
        if (IsPlainInteger(value)) {
            const int direction = value.asInt();
            shape.direction = direction < none || direction > highest ? none : direction;
        }
    }

    void ApplyColours() {
        const Json::Value& colours = MemberOf(root, "ShapeColor");
        const unsigned count = colours.isArray() || colours.isObject() ? colours.size() : 0;
        for (unsigned i = 0; i < count; ++i) {
            ApplyColour(colours[i]);
        }
    }

    void ApplyColour(const Json::Value& entry) {
        if (!entry.isObject() || !entry.isMember("ColorName")) {
            return;
        }
        const std::string colourName = entry["ColorName"].asString();
        if (entry["R"].isNull() || entry["G"].isNull() || entry["B"].isNull()) {
            return;
        }
        const ColorF colour =
            OpaqueColour(static_cast<float>(entry["R"].asInt()), static_cast<float>(entry["G"].asInt()),
                         static_cast<float>(entry["B"].asInt()));
        SetColour(colourName, colour);
    }

    void SetColour(const std::string& colourName, const ColorF& colour) {
        if (colourName == "SelColor") {
            shape.selColor = colour;
        } else if (colourName == "UnSelColor") {
            shape.unSelColor = colour;
        } else if (colourName == "FillColor") {
            shape.fillColor = colour;
        } else if (colourName == "FontColor") {
            shape.textStyle.colour = colour;
        }
    }

    const Json::Value& root;
    CVideoAnalyseShape& shape;
};

bool CVideoAnalyseShape::ParseStyleConfig(const char* styleText) {
    if (IsEmpty(styleText)) {
        return true;
    }
    Json::Value root;
    if (!ParseJson(styleText, root)) {
        return false;
    }
    platform::LockGuard guard(lock);
    StyleReader(root, *this).Apply();
    return true;
}

} // namespace rulecanvas
