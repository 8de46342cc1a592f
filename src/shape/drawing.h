#pragma once

#include "geometry/arrows.h"
#include "shape/shape_look.h"

namespace rulecanvas {

constexpr int SolidPen = 0;
constexpr int PatternedPen = 1;
/// The size that figures give their captions.
constexpr float FigureCaptionSize = 2.0F;

/// A small box round each point.
void DrawAdjustBoxes(PointSpan points, IContainerGraphics& surface, const ColorF& colour);

/// The shape's caption, placed by the host from the shape's points.
void DrawShowName(const ShapeLook& look, IContainerGraphics& surface);

/// The shape's caption with its top left at a point.
void DrawCaptionAt(const PointF& at, const TextStyle& style, const std::string& caption, IContainerGraphics& surface);

/// The two strokes of an arrow head at `tip`, for an arrow that comes from `tail`.
void DrawArrowHead(const PointF& tail, const PointF& tip, float width, const ColorF& colour,
                   IContainerGraphics& surface);

/// The arrow head of a line's direction mark.
void DrawDirectionArrow(const PointF& tail, const PointF& tip, const ColorF& colour, IContainerGraphics& surface);

/// The stroke across the middle of a segment; its ends.
CrossStroke DrawDirectionMark(const PointF& a, const PointF& b, const ColorF& colour, IContainerGraphics& surface);

/// A solid line in the shape's colour.
void DrawSegment(const PointF& from, const PointF& to, float width, const ColorF& colour, IContainerGraphics& surface);

/// The segments between consecutive points.
void DrawOpenPath(const Points& path, float width, const ColorF& colour, IContainerGraphics& surface);

} // namespace rulecanvas
