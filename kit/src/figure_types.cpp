#include <rulecanvas_kit/figure_types.hpp>

#include "json.hpp"

#include <algorithm>

namespace rulecanvas::kit {

namespace {

constexpr int32_t NoDirection = -1;
constexpr const char* Deletable = "EnableRBtnDelete";
constexpr const char* StyleMembers[] = {"IsFill",     "mosaic",        "CanAdjust",          "CanMove",
                                        "XArrowLine", "LineThickness", "UnSelLineThickness", "PenStyle",
                                        "Direction",  "FontSize",      "ShapeColor"};

const std::vector<DirectionChoice> Sides = {
    {NoDirection, "none"}, {0, "from A to B"}, {1, "from B to A"}, {2, "both ways"}};
const std::vector<DirectionChoice> InOut = {{NoDirection, "none"}, {0, "inwards"}, {1, "outwards"}, {2, "both ways"}};
const std::vector<DirectionChoice> Across = {
    {NoDirection, "none"}, {0, "to one side"}, {1, "to the other side"}, {2, "both ways"}};
const std::vector<DirectionChoice> Heads = {
    {NoDirection, "none"}, {5, "to the second point"}, {3, "to the upper end"}, {4, "to the lower end"}};

bool IsWholeNumber(const std::string& text) {
    return !text.empty() && text.size() < 4 && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string WordProblem(const FigureType& type, const std::string& word) {
    const bool known =
        std::any_of(type.words.begin(), type.words.end(), [&word](const char* one) { return word == one; });
    const bool counts = std::string(type.type) == "CrossShape";
    if (known || (counts && IsWholeNumber(word))) {
        return std::string();
    }
    std::string choices = counts ? "the number of crosses" : "a style such as {\"LineThickness\":3}";
    for (const char* one : type.words) {
        choices += std::string(" or ") + one;
    }
    return "\"" + word + "\" is no option of this type, which takes " + choices;
}

} // namespace

const std::vector<FigureType>& FigureTypes() {
    static const std::vector<FigureType> types = {
        {"Rect", "Rectangle", Gesture::Box, 0, {}, NoDirection, {"TextOnly", Deletable}},
        {"OvalShape", "Oval", Gesture::Box, 0, {}, NoDirection, {}},
        {"Polygon", "Polygon", Gesture::Corners, 3, InOut, NoDirection, {"Convex", Deletable}},
        {"VirablePolygon", "Variable polygon", Gesture::Corners, 3, InOut, NoDirection, {"Convex", Deletable}},
        {"PixelCountShape", "Pixel counter", Gesture::Box, 0, {}, NoDirection, {}},
        {"LineShape", "Line", Gesture::Line, 0, Across, NoDirection, {"Horizon", "MovedHLine"}},
        {"VerticalLineShape", "Vertical line", Gesture::Line, 0, Across, NoDirection, {}},
        {"HorizontalLineShape", "Horizontal line", Gesture::Line, 0, Across, NoDirection, {"Horizon", "MovedHLine"}},
        {"ArrowLineShape", "Arrow", Gesture::Line, 2, Heads, 5, {}},
        {"DashLineShape", "Dashed line", Gesture::Line, 0, {}, NoDirection, {}},
        {"BrokenLine", "Broken line", Gesture::Corners, 3, {}, NoDirection, {"Convex", Deletable}},
        {"XLineShape", "Tripwire", Gesture::Corners, 2, Sides, 0, {}},
        {"CrossShape", "Cross", Gesture::Places, 0, {}, NoDirection, {}},
        {"BigCrossShape", "Cross-hairs", Gesture::Places, 0, {}, NoDirection, {}},
        {"SpotShape", "Spot", Gesture::Places, 0, {}, NoDirection, {"solid"}},
    };
    return types;
}

const FigureType* FindFigureType(const std::string& type) {
    const auto& types = FigureTypes();
    const auto found =
        std::find_if(types.begin(), types.end(), [&type](const FigureType& one) { return type == one.type; });
    return found != types.end() ? &*found : nullptr;
}

std::string FigureTitle(const std::string& type) {
    const FigureType* const known = FindFigureType(type);
    return known != nullptr ? known->title : type;
}

Gesture GestureOf(const Rule& rule) {
    const FigureType* const known = FindFigureType(rule.type);
    const Json::Value path = Member(ParseObject(rule.option), "XArrowLine");
    const bool isPath = rule.type == "ArrowLineShape" && path.isBool() && path.asBool();
    return isPath ? Gesture::Corners : known != nullptr ? known->gesture : Gesture::Box;
}

std::string OptionProblem(const std::string& type, const std::string& option) {
    const FigureType* const known = FindFigureType(type);
    if (option.empty() || known == nullptr) {
        return std::string();
    }
    if (option[0] != '{') {
        return WordProblem(*known, option);
    }
    std::string problem;
    const std::optional<Json::Value> style = ParseJson(option, problem);
    if (!style) {
        return "the style is no JSON: " + problem;
    }
    for (const std::string& member : style->getMemberNames()) {
        if (std::find(std::begin(StyleMembers), std::end(StyleMembers), member) == std::end(StyleMembers)) {
            return "a style has no member \"" + member + "\"";
        }
    }
    return std::string();
}

void ChooseReadableColours(Rule& rule) {
    constexpr Colour Selected = {255, 214, 10};
    constexpr Colour Unselected = {64, 224, 255};
    if (OptionSets(rule.option, "ShapeColor")) {
        return;
    }
    rule.selectedColour = rule.selectedColour.value_or(Selected);
    rule.unselectedColour = rule.unselectedColour.value_or(Unselected);
}

bool OptionSets(const std::string& option, const char* member) {
    return ParseObject(option).isMember(member);
}

} // namespace rulecanvas::kit
