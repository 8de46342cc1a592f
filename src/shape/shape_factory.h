#pragma once

#include "shape/shape.h"

#include <map>
#include <string>

namespace rulecanvas {

/// Makes shapes by type name. Every shape class registers itself during static initialisation, so the map never changes
/// while a host can call.
class CShapeFactory {
  public:
    using Creator = ShapePtr (*)();

    static CShapeFactory& GetInstance();

    /// False, with the earlier creator kept, when the name is taken.
    bool Register(const std::string& typeName, Creator creator);

    /// Null for an unknown name. Names are compared byte for byte.
    ShapePtr CreateShape(const std::string& typeName) const;

  private:
    std::map<std::string, Creator> creators;
};

/// A creator for `CShapeFactory::Register`: a new `Shape` made with the given constructor arguments.
template <class Shape, auto... Arguments>
ShapePtr MakeShape() {
    return std::make_shared<Shape>(Arguments...);
}

} // namespace rulecanvas
