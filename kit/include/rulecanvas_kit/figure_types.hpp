/// The shape types, as people know them.
#ifndef RULECANVAS_KIT_FIGURE_TYPES_HPP
#define RULECANVAS_KIT_FIGURE_TYPES_HPP

#include <rulecanvas_kit/rule.hpp>

#include <string>
#include <vector>

namespace rulecanvas::kit {

/// How a figure is drawn.
enum class Gesture {
    Box,     ///< Press, drag, release.
    Line,    ///< The same, or a click for each end.
    Corners, ///< A click for each corner, then the right button.
    Places   ///< A click for each of a fixed number of places.
};

struct DirectionChoice {
    int32_t direction;
    const char* title;
};

struct FigureType {
    const char* type;  ///< As the library registers it.
    const char* title; ///< For people: "Variable polygon".
    Gesture gesture;
    size_t leastCorners;                     ///< From which on a figure drawn by corners can be finished.
    std::vector<DirectionChoice> directions; ///< Empty: the figure shows none.
    int32_t firstDirection;                  ///< What a newly drawn figure shows.
    std::vector<const char*> words;          ///< Mode words that the option may be.
};

const std::vector<FigureType>& FigureTypes();
/// Null for a type that is not known here.
const FigureType* FindFigureType(const std::string& type);
/// The title, or the type itself when it is unknown.
std::string FigureTitle(const std::string& type);
/// How the figures of a rule are drawn; an arrow becomes a path by its option.
Gesture GestureOf(const Rule& rule);

/// Why an option does not suit a type; empty when it does.
std::string OptionProblem(const std::string& type, const std::string& option);
/// Gives a rule that names no colours such that can be seen on any picture.
void ChooseReadableColours(Rule& rule);

/// Whether the option, as a style, has that member.
bool OptionSets(const std::string& option, const char* member);

} // namespace rulecanvas::kit

#endif
