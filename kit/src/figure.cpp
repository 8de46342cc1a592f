#include <rulecanvas_kit/figure.hpp>

#include "figure_json.hpp"
#include "plane.hpp"

#include <algorithm>
#include <cmath>

namespace rulecanvas::kit {

namespace {

constexpr int Grid = 8191;
constexpr double Half = 0.5;
constexpr const char* CrossHairs = "BigCrossShape";
constexpr const char* PixelCounter = "PixelCountShape";
constexpr const char* Radius = "radius";
constexpr int32_t UsualRadius = 5;

float ToPixel(int32_t grid, int length) {
    return static_cast<float>(std::trunc(static_cast<double>(length) * grid / Grid + Half));
}

int32_t ToGrid(float pixel, int length) {
    return static_cast<int32_t>(std::trunc(static_cast<double>(pixel) * Grid / std::max(length, 1) + Half));
}

int32_t NumberAt(const Json::Value& list, Json::ArrayIndex index) {
    return list.isArray() && index < list.size() ? WholeNumber(list[index]).value_or(0) : 0;
}

/// Two bands stand for each cross: one across, one down.
std::vector<PointF> PointsOfBands(const Json::Value& bands, Size view) {
    std::vector<PointF> points;
    for (Json::ArrayIndex i = 0; i + 1 < bands.size(); i += 2) {
        points.push_back(
            {ToPixel(NumberAt(bands[i + 1], 0) + 1, view.width), ToPixel(NumberAt(bands[i], 1) + 1, view.height)});
    }
    return points;
}

Json::Value BandsOfPoints(const std::vector<PointF>& points, Size view) {
    Json::Value bands(Json::arrayValue);
    const auto add = [&bands](int32_t left, int32_t top, int32_t right, int32_t bottom) {
        Json::Value band(Json::arrayValue);
        for (const int32_t side : {left, top, right, bottom}) {
            band.append(side);
        }
        bands.append(band);
    };
    for (const PointF& point : points) {
        const int32_t x = ToGrid(point.x, view.width);
        const int32_t y = ToGrid(point.y, view.height);
        add(0, y - 1, Grid, y + 1);
        add(x - 1, 0, x + 1, Grid);
    }
    return bands;
}

Json::Value PairsOfPoints(const std::vector<PointF>& points, Size view) {
    Json::Value pairs(Json::arrayValue);
    for (const PointF& point : points) {
        Json::Value pair(Json::arrayValue);
        pair.append(ToGrid(point.x, view.width));
        pair.append(ToGrid(point.y, view.height));
        pairs.append(pair);
    }
    return pairs;
}

/// How far a figure between `low` and `high` may go by `wanted` in a view of that length.
float Allowed(float wanted, float low, float high, int length) {
    const float last = static_cast<float>(length - 1);
    return wanted < 0.0F ? -std::min(-wanted, std::max(low, 0.0F)) : std::min(wanted, std::max(last - high, 0.0F));
}

bool Permits(const Rule& rule, const char* member) {
    const Json::Value flag = Member(ParseObject(rule.option), member);
    return !flag.isBool() || flag.asBool();
}

std::vector<PointF> Corners(const std::vector<PointF>& points) {
    return {points[0], {points[1].x, points[0].y}, points[1], {points[0].x, points[1].y}};
}

Grip BoxGrip(const std::vector<PointF>& handles, const std::vector<PointF>& corners, PointF at) {
    return NearAny(handles, at) ? Grip::Point : InRing(corners, at) ? Grip::Body : Grip::None;
}

std::vector<PointF> EightHandles(const std::vector<PointF>& corners) {
    std::vector<PointF> handles = corners;
    for (size_t i = 0; i < corners.size(); ++i) {
        const PointF& next = corners[(i + 1) % corners.size()];
        handles.push_back({(corners[i].x + next.x) / 2.0F, (corners[i].y + next.y) / 2.0F});
    }
    return handles;
}

/// An oval is taken by its whole box, the border included.
Grip OvalGrip(const std::vector<PointF>& corners, PointF at) {
    if (NearAny(EightHandles(corners), at)) {
        return Grip::Point;
    }
    const bool inside = corners[0].x <= at.x && at.x <= corners[2].x && corners[0].y <= at.y && at.y <= corners[2].y;
    return inside ? Grip::Body : Grip::None;
}

Grip SpotGrip(const Rule& rule, PointF centre, PointF at) {
    const int32_t radius = WholeNumber(Member(ParseObject(rule.configuration), Radius)).value_or(UsualRadius);
    const float distance = (at.x - centre.x) * (at.x - centre.x) + (at.y - centre.y) * (at.y - centre.y);
    return std::trunc(distance) <= static_cast<float>(radius) * static_cast<float>(radius) ? Grip::Body : Grip::None;
}

Grip CrossGrip(const std::vector<PointF>& points, PointF at) {
    constexpr float HalfSide = 5.0F;
    const bool hit = std::any_of(points.begin(), points.end(), [at](PointF cross) {
        return std::fabs(at.x - cross.x) <= HalfSide && std::fabs(at.y - cross.y) <= HalfSide;
    });
    return hit ? Grip::Point : Grip::None;
}

Grip LineGrip(const Rule& rule, const std::vector<PointF>& points, PointF at) {
    if (!OnPath(points, at)) {
        return Grip::None;
    }
    if (NearAny(points, at)) {
        return Permits(rule, "CanAdjust") ? Grip::Point : Grip::None;
    }
    return Permits(rule, "CanMove") ? Grip::Body : Grip::None;
}

} // namespace

std::vector<PointF> FigurePoints(const Rule& rule, Size view) {
    const Json::Value configuration = ParseObject(rule.configuration);
    const Json::Value& geometry = GeometryOf(rule, configuration);
    if (!geometry.isArray() || rule.type == PixelCounter) {
        return {};
    }
    if (rule.type == CrossHairs) {
        return PointsOfBands(geometry, view);
    }
    std::vector<PointF> points;
    for (const Json::Value& pair : geometry) {
        points.push_back({ToPixel(NumberAt(pair, 0), view.width), ToPixel(NumberAt(pair, 1), view.height)});
    }
    return points;
}

Grip GripAt(const Rule& rule, const std::vector<PointF>& points, PointF at) {
    if (points.empty()) {
        return Grip::None;
    }
    if (rule.type == "SpotShape") {
        return SpotGrip(rule, points[0], at);
    }
    if (rule.type == "CrossShape" || rule.type == CrossHairs) {
        return CrossGrip(points, at);
    }
    if (points.size() < 2) {
        return Grip::None;
    }
    if (rule.type == "Rect" || rule.type == PixelCounter) {
        return BoxGrip(Corners(points), Corners(points), at);
    }
    if (rule.type == OvalKey) {
        return OvalGrip(Corners(points), at);
    }
    if (rule.type == "Polygon" || rule.type == "VirablePolygon") {
        return BoxGrip(points, points, at);
    }
    if (rule.type == "BrokenLine") {
        return OnPath(points, at) ? BoxGrip(points, points, at) : Grip::None;
    }
    return LineGrip(rule, points, at);
}

std::string MovedConfiguration(const Rule& rule, Size view, int dx, int dy) {
    std::vector<PointF> points = FigurePoints(rule, view);
    if (points.empty()) {
        return std::string();
    }
    const auto byX = [](PointF a, PointF b) { return a.x < b.x; };
    const auto byY = [](PointF a, PointF b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(points.begin(), points.end(), byX);
    const auto [top, bottom] = std::minmax_element(points.begin(), points.end(), byY);
    const float stepX = Allowed(static_cast<float>(dx), left->x, right->x, view.width);
    const float stepY = Allowed(static_cast<float>(dy), top->y, bottom->y, view.height);
    for (PointF& point : points) {
        point = {point.x + stepX, point.y + stepY};
    }
    Json::Value json = ParseObject(rule.configuration);
    json.removeMember(rule.type == OvalKey ? OvalKey : rule.name);
    json[rule.name] = rule.type == CrossHairs ? BandsOfPoints(points, view) : PairsOfPoints(points, view);
    return CompactJson(json);
}

std::string RenamedConfiguration(const Rule& rule, const std::string& name) {
    Json::Value json = ParseObject(rule.configuration);
    const Json::Value geometry = GeometryOf(rule, json);
    if (geometry.isNull()) {
        return rule.configuration;
    }
    json.removeMember(rule.name);
    json[name] = geometry;
    return CompactJson(json);
}

std::string ConfigurationToPass(const Rule& rule) {
    if (rule.type != OvalKey || rule.configuration.empty()) {
        return rule.configuration;
    }
    return RenamedConfiguration(rule, OvalKey);
}

std::string MergedConfiguration(const Rule& rule, const std::string& written) {
    Json::Value kept = ParseObject(rule.configuration);
    kept.removeMember(rule.name);
    if (rule.type == OvalKey) {
        kept.removeMember(OvalKey);
    }
    if (kept.empty()) {
        return written;
    }
    kept[rule.name] = Member(ParseObject(written), rule.name);
    return CompactJson(kept);
}

bool ClosingEdgeCrosses(const std::vector<PointF>& corners) {
    for (size_t i = 1; i + 2 < corners.size(); ++i) {
        if (SegmentsMeet(corners.back(), corners.front(), corners[i], corners[i + 1])) {
            return true;
        }
    }
    return false;
}

} // namespace rulecanvas::kit
