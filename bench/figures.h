#pragma once

#include <rulecanvas/rulecanvas.h>

#include <string>
#include <vector>

namespace rulecanvas::bench {

using Points = std::vector<PointF>;

constexpr ClientRect ViewRect{0, 0, 1920, 1080};
/// Configuration texts give places on a grid of this span over the view.
constexpr int GridSpan = 8191;

/// A place that no figure holds and a hit test of none reaches.
constexpr PointF NoFigure{1919.0F, 1079.0F};

enum class Kind { Polygon, Rectangle, Line };
constexpr Kind Kinds[] = {Kind::Polygon, Kind::Rectangle, Kind::Line};

/// The type that the library knows the kind by.
const char* TypeOf(Kind kind);

/// Where the `index`th figure lies: strewn over the view, always in the same way, overlapping when there are many.
PointF CentreOf(int index);
/// A regular polygon of 20 corners, 30 to 36 pixels from its centre, or what fits into such a one.
Points FigureAt(Kind kind, int index);

/// A pixel's place on the grid.
int OnGrid(float pixel, int32_t span);
std::string ConfigurationOf(const Points& points);

} // namespace rulecanvas::bench
