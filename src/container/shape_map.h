#pragma once

#include "shape/shape.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace rulecanvas {

using ShapePtr = std::shared_ptr<CVideoAnalyseShape>;

/// Shapes as they were at one moment. Later changes of the map leave it alone, and it keeps them in memory.
class ShapeSnapshot {
  public:
    using List = std::vector<ShapePtr>;

    explicit ShapeSnapshot(std::shared_ptr<const List> shapes) : list(std::move(shapes)) {}
    List::const_iterator begin() const { return list->begin(); }
    List::const_iterator end() const { return list->end(); }

  private:
    std::shared_ptr<const List> list;
};

/// The shapes of a container by ShapeID. Its own lock is held for single look-ups and changes only, never while a shape
/// is called.
class ShapeMap {
  public:
    void Insert(const ShapePtr& shape);
    void Erase(ShapeID id);
    /// Empties the map.
    std::map<ShapeID, ShapePtr> TakeAll();
    /// Null when unknown.
    ShapePtr Find(ShapeID id) const;
    /// All shapes in ascending order of ShapeID.
    ShapeSnapshot InOrder() const;

  private:
    mutable std::mutex mutex;
    std::map<ShapeID, ShapePtr> shapes;
    mutable std::shared_ptr<const ShapeSnapshot::List> ordered; // null after a change
};

} // namespace rulecanvas
