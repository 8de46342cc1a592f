#include "container/shape_map.h"

#include <utility>

namespace rulecanvas {

void ShapeMap::Insert(const ShapePtr& shape) {
    const std::lock_guard<std::mutex> guard(mutex);
    shapes[shape->GetShapeId()] = shape;
    ordered.reset();
}

void ShapeMap::Erase(ShapeID id) {
    const std::lock_guard<std::mutex> guard(mutex);
    shapes.erase(id);
    ordered.reset();
}

std::map<ShapeID, ShapePtr> ShapeMap::TakeAll() {
    const std::lock_guard<std::mutex> guard(mutex);
    ordered.reset();
    return std::exchange(shapes, {});
}

ShapePtr ShapeMap::Find(ShapeID id) const {
    const std::lock_guard<std::mutex> guard(mutex);
    const auto found = shapes.find(id);
    return found == shapes.end() ? nullptr : found->second;
}

ShapeSnapshot ShapeMap::InOrder() const {
    const std::lock_guard<std::mutex> guard(mutex);
    if (ordered == nullptr) {
        auto list = std::make_shared<ShapeSnapshot::List>();
        list->reserve(shapes.size());
        for (const auto& [id, shape] : shapes) {
            list->push_back(shape);
        }
        ordered = std::move(list);
    }
    return ShapeSnapshot(ordered);
}

} // namespace rulecanvas
