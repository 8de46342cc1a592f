#pragma once

#include "shape/claim.h"

#include <array>
#include <cstdint>
#include <vector>

namespace rulecanvas {

/// Bounds of many figures, made for finding the few that hold a point.
///
/// The plane is cut into upright and into level strips. Each strip has one bit for each figure, set when the figure's
/// bounds reach into it: the figures round a point are the bits that the point's two strips share.
class BoundsTable {
  public:
    /// Forgets everything and holds these bounds from now on.
    void Reset(const std::vector<Claim>& claims);
    void Set(size_t place, const Claim& claim);
    /// The places whose bounds hold the point, in ascending order; appended.
    void Find(const PointF& point, std::vector<uint32_t>& places) const;

  private:
    static constexpr size_t StripCount = 64;
    static constexpr size_t WordBits = 64;

    /// The strips across one axis.
    class Axis {
      public:
        /// Cuts the span between two coordinates; what lies beyond belongs to the outermost strips.
        void Reset(float lowest, float highest, size_t figureCount);
        void Mark(size_t place, float from, float to, bool reached);
        const std::vector<uint64_t>& StripAt(float coordinate) const { return strips[IndexOf(coordinate)]; }

      private:
        size_t IndexOf(float coordinate) const;

        float begin = 0.0F;
        float stripsPerPixel = 0.0F;
        std::array<std::vector<uint64_t>, StripCount> strips;
    };

    void Mark(size_t place, bool reached);

    std::vector<Claim> bounds;
    Axis columns;
    Axis rows;
};

} // namespace rulecanvas
