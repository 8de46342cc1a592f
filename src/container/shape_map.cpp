#include "container/shape_map.h"

#include <algorithm>

namespace rulecanvas {
namespace {

using Guard = std::lock_guard<std::mutex>;

ShapeVector::const_iterator PlaceOf(ShapeID id, const ShapeVector& shapes) {
    return std::lower_bound(shapes.begin(), shapes.end(), id,
                            [](const ShapePtr& shape, ShapeID sought) { return shape->GetShapeId() < sought; });
}

bool IsAt(ShapeVector::const_iterator place, ShapeID id, const ShapeVector& shapes) {
    return place != shapes.end() && (*place)->GetShapeId() == id;
}

void InsertInto(ShapeVector& shapes, const ShapePtr& shape) {
    shapes.insert(PlaceOf(shape->GetShapeId(), shapes), shape);
}

void EraseFrom(ShapeVector& shapes, ShapeID id) {
    const auto place = PlaceOf(id, shapes);
    if (IsAt(place, id, shapes)) {
        shapes.erase(place);
    }
}

} // namespace

void ShapeMap::Insert(const ShapePtr& shape) {
    const Guard guard(mutex);
    InsertInto(shapes.Change(), shape);
    if (shape->IsComposite()) {
        InsertInto(composites.Change(), shape);
    }
}

void ShapeMap::Erase(ShapeID id) {
    const Guard guard(mutex);
    EraseFrom(shapes.Change(), id);
    EraseFrom(composites.Change(), id);
}

ShapeSnapshot ShapeMap::TakeAll() {
    const Guard guard(mutex);
    composites = {};
    return ShapeSnapshot(std::exchange(shapes, {}).Take());
}

ShapePtr ShapeMap::Find(ShapeID id) const {
    const Guard guard(mutex);
    const auto place = PlaceOf(id, shapes.Peek());
    return IsAt(place, id, shapes.Peek()) ? *place : nullptr;
}

ShapeSnapshot ShapeMap::InOrder() const {
    const Guard guard(mutex);
    return ShapeSnapshot(shapes.Take());
}

ShapeSnapshot ShapeMap::Composites() const {
    const Guard guard(mutex);
    return ShapeSnapshot(composites.Take());
}

} // namespace rulecanvas
