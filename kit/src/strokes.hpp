/// What a figure is drawn with.
#ifndef RULECANVAS_KIT_STROKES_HPP
#define RULECANVAS_KIT_STROKES_HPP

#include <rulecanvas_kit/rule_set.hpp>

#include <vector>

namespace rulecanvas::kit {

/// The library tells some things by drawing them alone: where a pixel counter is, and how far a drawing has come.
struct RuleSet::Strokes final : public Surface {
    struct Pair {
        PointF from;
        PointF to;
    };

    void StrokeLine(const PointF& from, const PointF& to, float, const ColorF&, int32_t) override {
        lines.push_back({from, to});
    }
    void StrokeRectangle(const PointF& topLeft, const PointF& bottomRight, float, const ColorF&, int32_t) override {
        rectangles.push_back({topLeft, bottomRight});
    }

    std::vector<Pair> lines;
    std::vector<Pair> rectangles;
};

} // namespace rulecanvas::kit

#endif
