// How a shape is made from a configuration text, and written back to one.

#include "shape/gesture_shape.h"
#include "shape/text.h"

namespace rulecanvas {

Refused CGestureShape::SetVideoAnalyseShapeData(const Configuration& configuration) {
    bool isStyled = false;
    try {
        TakeStyle(configuration.styleOrMode);
        isStyled = true;
        BeginConfiguration(configuration.shapeName);
        ReadWord(configuration.styleOrMode);
        if (!IsEmpty(configuration.shapeData)) {
            return LoadText(configuration);
        }
        RegisterDraw();
        return std::nullopt;
    } catch (const Json::Exception& inconvertible) {
        return Refusal{"values of the documented types",
                       std::string("one that cannot be converted (") + inconvertible.what() + ")",
                       isStyled ? "$." + GeometryKey() : "option"};
    }
}

void CGestureShape::TakeStyle(const char* option) {
    if (TakesStyle()) {
        LockGuard guard(lock);
        ChangeStyle([&](ShapeStyle& changed) { ReadStyle(option, changed); });
        maxPtNum = style->xArrowLine ? LongestPath : maxPtNum;
    }
}

/// The selection is told before the name is known: a host that waits for it hears of a shape that may still be refused.
void CGestureShape::BeginConfiguration(const char* shapeName) {
    {
        LockGuard guard(lock);
        figure.points.clear();
        ++life;
    }
    TellSelection();
    LockGuard guard(lock);
    name = shapeName == nullptr ? "NoName" : shapeName;
    Enter(Waiting);
    selected = true;
    MarkClaimStale(); // what follows may be refused
}

Refused CGestureShape::LoadText(const Configuration& configuration) {
    Json::Value root;
    std::string why;
    if (!ParseJson(configuration.shapeData, root, &why)) {
        return Refusal{"a JSON text", why, "$"};
    }
    const std::string key = GeometryKey();
    Loading loading{root, MemberOf(root, key), configuration.view, "$." + key};
    {
        LockGuard guard(lock);
        LearnViewSize(configuration.view);
        if (Refused refused = Load(loading)) {
            return refused;
        }
    }
    MarkClaimStale();
    if (loading.isDrawn) {
        RegisterDraw();
    }
    return std::nullopt;
}

bool CGestureShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    if (WritesPlaces()) {
        LearnViewSize();
    }
    Json::Value root;
    {
        LockGuard guard(lock);
        Json::Value geometry = WriteGeometry();
        if (geometry.isNull()) {
            return false;
        }
        root[name] = std::move(geometry);
    }
    return CopyText(WriteJson(root), RuleOfCopying(), buffer, size);
}

} // namespace rulecanvas
