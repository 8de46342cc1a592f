#include "container/shape_map.h"

#include <algorithm>

namespace rulecanvas {

ShapeVector::const_iterator PlaceOf(ShapeID id, const ShapeVector& shapes) {
    return std::lower_bound(shapes.begin(), shapes.end(), id,
                            [](const ShapePtr& shape, ShapeID sought) { return shape->GetShapeId() < sought; });
}

namespace {

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
    const std::lock_guard guard(mutex);
    InsertInto(shapes.Change(), shape);
    if (shape->IsComposite()) {
        InsertInto(composites.Change(), shape);
    }
}

void ShapeMap::Erase(ShapeID id) {
    const std::lock_guard guard(mutex);
    EraseFrom(shapes.Change(), id);
    EraseFrom(composites.Change(), id);
}

ShapeSnapshot ShapeMap::TakeAll() {
    const std::lock_guard guard(mutex);
    composites = {};
    return ShapeSnapshot(std::exchange(shapes, {}).Take());
}

ShapePtr ShapeMap::Find(ShapeID id) const {
    const std::lock_guard guard(mutex);
    const auto place = PlaceOf(id, shapes.Peek());
    return IsAt(place, id, shapes.Peek()) ? *place : nullptr;
}

ShapeSnapshot ShapeMap::InOrder() const {
    const std::lock_guard guard(mutex);
    return ShapeSnapshot(shapes.Take());
}

ShapeSnapshot ShapeMap::Composites() const {
    const std::lock_guard guard(mutex);
    return ShapeSnapshot(composites.Take());
}

} // namespace rulecanvas
