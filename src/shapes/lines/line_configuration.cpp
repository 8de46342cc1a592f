#include "shape/json_text.h"
#include "shape/point_json.h"
#include "shape/text.h"
#include "shapes/lines/line_geometry.h"
#include "shapes/lines/line_shape.h"

#include <algorithm>
#include <array>

namespace rulecanvas {
namespace {

bool ReachesAcrossTheView(const std::string& name) {
    constexpr std::array<const char*, 5> names{"DetectLine", "ForLine", "MiddleLine", "StopLine", "BackLine"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

bool CLineShape::SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) {
    ParseStyleConfig(styleOrMode);
    BeginConfiguration(shapeName);
    horizon = horizon || IsWord(styleOrMode, "Horizon") || name == "Horizon";
    movedHLine = movedHLine || IsWord(styleOrMode, "MovedHLine") || name == "MovedHLine";
    if (!IsEmpty(shapeData) && !LoadPoints(shapeData)) {
        return false;
    }
    RegisterDraw();
    return true;
}

bool CLineShape::LoadPoints(const char* shapeData) {
    Json::Value root;
    if (!ParseJson(shapeData, root)) {
        return false;
    }
    const Json::Value& pairs = MemberOf(root, name);
    if (!pairs.isArray() || pairs.size() < LinePoints) {
        return false;
    }
    const ViewSize view = KnownViewSize();
    const auto count = static_cast<Json::ArrayIndex>(std::min<size_t>(pairs.size(), MaximumPoints()));
    Points path;
    for (Json::ArrayIndex i = 0; i < count; ++i) {
        path.push_back(ReadPoint(pairs[i], view));
    }
    if (path.size() == LinePoints && ReachesAcrossTheView(name)) {
        path = ExtendedAcrossGrid(path);
    }
    ReplacePoints(std::move(path));
    if (name == "ParkLine") {
        MoveHook(0.0F, 0.0F); // whoever bound the callback gets to see the line; it is kept whatever the answer
    }
    state = Complete;
    return true;
}

bool CLineShape::GetVideoAnalyseShapeConfigData(char* buffer, int size) {
    const auto [path, view] = CopyFitted();
    return path.size() >= LinePoints && CopyLine(PointsText(name, path, view), buffer, size);
}

bool CLineShape::ClipToPolygon(const char* text, const char* key, int mode) {
    const Points line = CopyPoints();
    Json::Value root;
    if (IsEmpty(text) || IsEmpty(key) || mode != 0 || line.size() != LinePoints || !ParseJson(text, root)) {
        return false;
    }
    const ViewSize view = KnownViewSize();
    Points ring;
    for (const Json::Value& corner : MemberOf(root, key)) {
        if (!IsArrayOf(corner, 2)) {
            return false;
        }
        ring.push_back(ReadRealPoint(corner, view));
    }
    Points meetings = MeetingsWithRing(line[0], line[1], ring);
    if (meetings.size() != LinePoints) {
        return false;
    }
    ReplacePoints(std::move(meetings));
    return true;
}

} // namespace rulecanvas
