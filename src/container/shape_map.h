#pragma once

#include "container/published.h"
#include "shape/shape.h"

#include <mutex>
#include <vector>

namespace rulecanvas {

using ShapeVector = std::vector<ShapePtr>;

/// Where the shape stands, or would stand, among shapes in ascending order of ShapeID.
ShapeVector::const_iterator PlaceOf(ShapeID id, const ShapeVector& shapes);

/// Shapes as they were at one moment. Later changes of the map leave it alone, and it keeps them in memory.
class ShapeSnapshot {
  public:
    explicit ShapeSnapshot(std::shared_ptr<const ShapeVector> shapes) : list(std::move(shapes)) {}
    ShapeVector::const_iterator begin() const { return list->begin(); }
    ShapeVector::const_iterator end() const { return list->end(); }

  private:
    std::shared_ptr<const ShapeVector> list;
};

/// The shapes of a container by ShapeID. Its own lock is held for single look-ups and changes only, never while a shape
/// is called.
class ShapeMap {
  public:
    void Insert(const ShapePtr& shape);
    void Erase(ShapeID id);
    /// Empties the map.
    ShapeSnapshot TakeAll();
    /// Null when unknown.
    ShapePtr Find(ShapeID id) const;
    /// All shapes in ascending order of ShapeID.
    ShapeSnapshot InOrder() const;
    /// The shapes that are made of others, in the same order.
    ShapeSnapshot Composites() const;

  private:
    mutable std::mutex mutex;
    mutable Published<ShapeVector> shapes;
    mutable Published<ShapeVector> composites;
};

} // namespace rulecanvas
