#pragma once

#include "shapes/lines/line_family_shape.h"

namespace rulecanvas {

enum class LineOrientation : int { Free = 0, Vertical = 1, Horizontal = 2 };

/// A straight line between two points. A vertical or horizontal one keeps to its direction.
class CLineShape : public CLineFamilyShape {
  public:
    explicit CLineShape(LineOrientation lineOrientation);
    /// A line of the same kind, look and names; without points, container and identity of the other.
    CLineShape(const CLineShape& other);

    // For a figure that owns this one; none of this version does.

    /// The figure inside which a line without an event name must be drawn. False without a figure.
    bool SetLimitArea(const CVideoAnalyseShape* area);
    /// Cuts the line, thought of as endless, down to the part between the outlines of a polygon given as a member of a
    /// JSON object. False, with nothing changed, unless the mode is 0 and the outline is met at two places.
    bool ClipToPolygon(const char* text, const char* key, int mode);

  protected:
    size_t MaximumPoints() const override {
        return LinePoints; // limits of the host are for lines that may bend
    }
    PointF Oriented(const PointF& point, const PointF& other) const override {
        return PointF{orientation == LineOrientation::Vertical ? other.x : point.x,
                      orientation == LineOrientation::Horizontal ? other.y : point.y};
    }

    bool IsWithinLimit(const PointF& first, const PointF& point) const override {
        return eventNameSet || (InPolygon(limitArea, point) && !CrossesPath(first, point, limitArea));
    }
    /// An end stays in the view and in the line's direction.
    bool DragPoint(int index, const PointF& to, const ClientRect& view) override;
    void Draw(const ShapeLook& look, PaintPass& pass) override;

  private:
    const LineOrientation orientation;
    /// A closed ring: the first point stands at the end again.
    Points limitArea;
};

} // namespace rulecanvas
