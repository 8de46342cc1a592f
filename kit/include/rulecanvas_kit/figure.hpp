/// What a host can say about a figure from its configuration alone: its points, what a press on it would take, the same
/// figure elsewhere or under another name. Pure functions that do not throw; points are pixels of a view of `view` size.
#ifndef RULECANVAS_KIT_FIGURE_HPP
#define RULECANVAS_KIT_FIGURE_HPP

#include <rulecanvas/host.hpp>
#include <rulecanvas_kit/rule.hpp>

#include <string>
#include <vector>

namespace rulecanvas::kit {

/// What a press on a figure takes.
enum class Grip { None, Point, Body };

/// The points of the figure; none without a configuration, and none for a pixel counter, which stores no place.
std::vector<PointF> FigurePoints(const Rule& rule, Size view);

/// What a press at `at` takes of a complete figure with these points.
Grip GripAt(const Rule& rule, const std::vector<PointF>& points, PointF at);

/// The configuration of the figure moved by whole pixels, as far as the view allows; empty when the figure has no place.
std::string MovedConfiguration(const Rule& rule, Size view, int dx, int dy);

/// The configuration of `rule` for a rule of another name.
std::string RenamedConfiguration(const Rule& rule, const std::string& name);

/// The configuration as the library reads it.
std::string ConfigurationToPass(const Rule& rule);

/// What `rule` keeps when the library reports `written`: members that the library reads but does not write stay.
std::string MergedConfiguration(const Rule& rule, const std::string& written);

/// Whether the edge from the last corner back to the first would cross another edge.
bool ClosingEdgeCrosses(const std::vector<PointF>& corners);

} // namespace rulecanvas::kit

#endif
