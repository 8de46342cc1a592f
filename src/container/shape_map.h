#pragma once

#include "shape/shape.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace rulecanvas {

using ShapePtr = std::shared_ptr<CVideoAnalyseShape>;
using ShapeList = std::vector<ShapePtr>;

/// The shapes of a container by ShapeID. Its own lock is held for single look-ups and changes only, never while a shape
/// is called; a walk goes over a list that later changes leave alone.
class ShapeMap {
  public:
    void Insert(const ShapePtr& shape);
    void Erase(ShapeID id);
    /// Null when unknown.
    ShapePtr Find(ShapeID id) const;
    /// All shapes in ascending order of ShapeID.
    std::shared_ptr<const ShapeList> InOrder() const;

  private:
    mutable std::mutex mutex;
    std::map<ShapeID, ShapePtr> shapes;
    mutable std::shared_ptr<const ShapeList> ordered; // null after a change
};

} // namespace rulecanvas
