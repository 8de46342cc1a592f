#include "figures.h"

namespace rulecanvas::torture {
namespace {

constexpr const char* Stroke = "p100,100 m150,140 P m300,250 u300,250";
constexpr const char* Clicks = "p100,100 u100,100 m150,120 P p300,100 u300,100 p300,250 u300,250";
constexpr const char* Path = "p100,100 u100,100 m150,120 P p300,100 u300,100 p300,250 u300,250 r10,10";

} // namespace

const std::vector<Figure>& Figures() {
    static const std::vector<Figure> figures{
        {"Rect", "", Stroke, {100, 100}, {200, 175}},
        {"Rect", "EnableRBtnDelete", Stroke, {100, 100}, {200, 175}},
        {"Rect", R"({"mosaic":{"enable":true,"size":40},"IsFill":true})", Stroke, {100, 100}, {200, 175}},
        {"LineShape", "", Stroke, {100, 100}, {200, 175}},
        {"LineShape", R"({"Direction":2})", Stroke, {100, 100}, {200, 175}},
        {"VerticalLineShape", "", Stroke, {100, 100}, {100, 175}},
        {"HorizontalLineShape", "", Stroke, {100, 100}, {200, 100}},
        {"ArrowLineShape", R"({"Direction":3})", Stroke, {100, 100}, {200, 175}},
        {"ArrowLineShape", R"({"XArrowLine":true,"Direction":5})", Path, {100, 100}, {200, 100}},
        {"XLineShape", R"({"Direction":1})", Path, {100, 100}, {200, 100}},
        {"DashLineShape", "", Stroke, {100, 100}, {200, 175}},
        {"BrokenLine", "EnableRBtnDelete", Path, {100, 100}, {200, 100}},
        {"Polygon", "EnableRBtnDelete", Path, {100, 100}, {250, 150}},
        {"Polygon", "Convex", Path, {100, 100}, {250, 150}},
        {"VirablePolygon", "", Path, {100, 100}, {250, 150}},
        {"OvalShape", "", Stroke, {100, 100}, {200, 175}},
        {"PixelCountShape", "", Stroke, {100, 100}, {200, 175}},
        {"CrossShape", "3", Clicks, {100, 100}, {300, 250}},
        {"BigCrossShape", "", Clicks, {100, 100}, {300, 100}},
        {"SpotShape", "solid", "p100,100 u100,100", {100, 100}, {100, 100}},
    };
    return figures;
}

} // namespace rulecanvas::torture
