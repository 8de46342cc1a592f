#include "container/press_index.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace rulecanvas {
namespace {

using Guard = std::lock_guard<std::mutex>;

/// Appends the places of flags that are set.
void AppendFlagged(const std::vector<uint8_t>& flags, std::vector<uint32_t>& places) {
    const uint8_t* const first = flags.data();
    const uint8_t* const end = first + flags.size();
    for (const uint8_t* at = first; at != end; ++at) {
        at = static_cast<const uint8_t*>(std::memchr(at, 1, static_cast<size_t>(end - at)));
        if (at == nullptr) {
            return;
        }
        places.push_back(static_cast<uint32_t>(at - first));
    }
}

} // namespace

void PressIndex::Invalidate() {
    const Guard searchGuard(searchMutex);
    views.clear(); // a shape that was deleted must not live on here
    const Guard guard(staleMutex);
    shapesChanged = true;
    stale.clear();
}

void PressIndex::MarkStale(ShapeID id) noexcept {
    const Guard guard(staleMutex);
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
    const Guard guard(searchMutex);
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
    if (const void* first = std::memchr(view.answersOutside.data(), 1, view.answersOutside.size())) {
        places.push_back(static_cast<uint32_t>(static_cast<const uint8_t*>(first) - view.answersOutside.data()));
    }
    if (view.selectedCount > 0) {
        AppendFlagged(view.isSelected, places);
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

void PressIndex::Refresh(const ShapeMap& shapes) {
    std::vector<ShapeID> changed;
    bool rebuild = false;
    {
        const Guard guard(staleMutex);
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
        const auto place =
            std::lower_bound(view.shapes.begin(), view.shapes.end(), id,
                             [](const ShapePtr& other, ShapeID sought) { return other->GetShapeId() < sought; });
        if (place != view.shapes.end() && *place == shape) {
            RefreshShape(view, static_cast<size_t>(place - view.shapes.begin()));
        }
    }
}

void PressIndex::RebuildOrStayChanged(const ShapeMap& shapes) {
    try {
        Rebuild(shapes);
    } catch (...) {
        const Guard guard(staleMutex);
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
        const size_t count = view.shapes.size();
        view.bounds.Resize(count);
        view.answersOutside.resize(count);
        view.isSelected.resize(count);
        for (size_t place = 0; place < count; ++place) {
            RefreshShape(view, place);
        }
    }
}

/// The mark goes first: a change while the claim is read is then reported anew.
void PressIndex::RefreshShape(View& view, size_t place) {
    CVideoAnalyseShape& shape = *view.shapes[place];
    shape.claimIsStale = false;
    const Claim claim = shape.GetClaim();
    const uint8_t selected = shape.IsSelected() ? 1 : 0;
    view.bounds.Set(place, claim);
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
