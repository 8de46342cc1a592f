#pragma once

#include "container/bounds_table.h"
#include "container/shape_map.h"

#include <mutex>
#include <vector>

namespace rulecanvas {

/// Tells which shapes a press has to ask. Those it leaves out would not answer, or only as lying outside, without being
/// selected and after another shape that answers so too: they can neither win nor be changed by the press.
class PressIndex {
  public:
    /// Shapes were added or taken away.
    void Invalidate();
    /// What the shape would answer may have changed. Any thread, also with the shape's lock held.
    void MarkStale(ShapeID id) noexcept;
    /// In ascending order of ShapeID.
    ShapeVector FindCandidates(const ShapeMap& shapes, ViewID view, const PointF& press);

  private:
    /// The shapes of one view, in ascending order of ShapeID.
    struct View {
        ViewID id = 0;
        ShapeVector shapes;
        BoundsTable bounds;
        /// A flag for each: it answers presses beside its bounds, as lying outside.
        std::vector<uint8_t> answersOutside;
        std::vector<uint8_t> isSelected;
        size_t selectedCount = 0;
    };

    void Refresh(const ShapeMap& shapes);
    void Rebuild(const ShapeMap& shapes);
    void RebuildOrStayChanged(const ShapeMap& shapes);
    View& ViewOf(ViewID id);
    static Claim ClaimOf(CVideoAnalyseShape& shape);
    static void NoteFlags(View& view, size_t place, const Claim& claim);
    static std::vector<uint32_t> FindPlaces(const View& view, const PointF& press);

    /// Held during a search. Shapes' own locks are taken under it.
    std::mutex searchMutex;
    std::vector<View> views;

    /// Guards what other threads report; nothing is taken under it.
    std::mutex staleMutex;
    std::vector<ShapeID> stale;
    bool shapesChanged = true;
};

} // namespace rulecanvas
