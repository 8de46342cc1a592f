#include "container/press_index.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace rulecanvas {
namespace {

/// Appends the places of flags that are set, at most `limit` of them.
void AppendFlagged(const std::vector<uint8_t>& flags, size_t limit, std::vector<uint32_t>& places) {
    const uint8_t* const begin = flags.data();
    const uint8_t* const end = begin + flags.size();
    const uint8_t* at = begin;
    for (size_t found = 0; found < limit && at != end; ++found, ++at) {
        // Many times as fast as a search byte by byte, and the flags are as many as the shapes.
        at = static_cast<const uint8_t*>(std::memchr(at, 1, static_cast<size_t>(end - at)));
        if (at == nullptr) {
            return;
        }
        places.push_back(static_cast<uint32_t>(at - begin));
    }
}

} // namespace

void PressIndex::Invalidate() {
    const std::lock_guard searchGuard(searchMutex);
    views.clear(); // a shape that was deleted must not live on here
    const std::lock_guard guard(staleMutex);
    shapesChanged = true;
    stale.clear();
}

void PressIndex::MarkStale(ShapeID id) noexcept {
    const std::lock_guard guard(staleMutex);
    if (shapesChanged) {
        return;
    }
    try {
        stale.push_back(id);
    } catch (...) { // without memory for one, all are looked at anew
        shapesChanged = true;
    }
}

ShapeVector PressIndex::FindCandidates(const ShapeMap& shapes, ViewID viewId, const PointF& press) {
    const std::lock_guard guard(searchMutex);
    Refresh(shapes);
    const View& view = ViewOf(viewId);
    if (std::isnan(press.x) || std::isnan(press.y)) {
        return view.shapes; // no bounds hold such a point, but a busy shape claims it
    }
    ShapeVector candidates;
    for (const uint32_t place : FindPlaces(view, press)) {
        candidates.push_back(view.shapes[place]);
    }
    return candidates;
}

std::vector<uint32_t> PressIndex::FindPlaces(const View& view, const PointF& press) {
    std::vector<uint32_t> places;
    view.bounds.Find(press, places);
    AppendFlagged(view.answersOutside, 1, places);
    AppendFlagged(view.isSelected, view.selectedCount, places);
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

void PressIndex::Refresh(const ShapeMap& shapes) {
    std::vector<ShapeID> changed;
    bool rebuild = false;
    {
        const std::lock_guard guard(staleMutex);
        changed.swap(stale);
        rebuild = std::exchange(shapesChanged, false);
    }
    if (rebuild) {
        RebuildOrStayChanged(shapes);
        return;
    }
    for (const ShapeID id : changed) {
        const ShapePtr shape = shapes.Find(id);
        if (shape == nullptr) {
            continue;
        }
        View& view = ViewOf(shape->GetViewId());
        const auto place = PlaceOf(id, view.shapes);
        if (place != view.shapes.end() && *place == shape) {
            const auto at = static_cast<size_t>(place - view.shapes.begin());
            const Claim claim = ClaimOf(*shape);
            view.bounds.Set(at, claim);
            NoteFlags(view, at, claim);
        }
    }
}

void PressIndex::RebuildOrStayChanged(const ShapeMap& shapes) {
    try {
        Rebuild(shapes);
    } catch (...) {
        const std::lock_guard guard(staleMutex);
        shapesChanged = true;
        throw;
    }
}

void PressIndex::Rebuild(const ShapeMap& shapes) {
    views.clear();
    for (const ShapePtr& shape : shapes.InOrder()) {
        ViewOf(shape->GetViewId()).shapes.push_back(shape);
    }
    for (View& view : views) {
        view.shapes.shrink_to_fit(); // made for long
        std::vector<Claim> claims;
        for (const ShapePtr& shape : view.shapes) {
            claims.push_back(ClaimOf(*shape));
        }
        view.bounds.Reset(claims);
        view.answersOutside.resize(claims.size());
        view.isSelected.resize(claims.size());
        for (size_t place = 0; place < claims.size(); ++place) {
            NoteFlags(view, place, claims[place]);
        }
    }
}

/// The mark goes first: a change while the claim is read is then reported anew.
Claim PressIndex::ClaimOf(CVideoAnalyseShape& shape) {
    shape.claimIsStale = false;
    return shape.GetClaim();
}

void PressIndex::NoteFlags(View& view, size_t place, const Claim& claim) {
    const CVideoAnalyseShape& shape = *view.shapes[place];
    const uint8_t selected = shape.IsSelected() ? 1 : 0;
    view.answersOutside[place] = claim.answersOutside && shape.IsEnabled() ? 1 : 0;
    view.selectedCount = view.selectedCount + selected - view.isSelected[place];
    view.isSelected[place] = selected;
}

PressIndex::View& PressIndex::ViewOf(ViewID id) {
    const auto found = std::find_if(views.begin(), views.end(), [&](const View& view) { return view.id == id; });
    if (found != views.end()) {
        return *found;
    }
    views.emplace_back();
    views.back().id = id;
    return views.back();
}

} // namespace rulecanvas
