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

    static CShapeFactory& GetInstance() {
        static CShapeFactory factory;
        return factory;
    }

    /// False, with the earlier creator kept, when the name is taken.
    bool Register(const std::string& typeName, Creator creator) { return creators.emplace(typeName, creator).second; }

    /// Null for an unknown name. Names are compared byte for byte.
    ShapePtr CreateShape(const std::string& typeName) const {
        const auto found = creators.find(typeName);
        return found == creators.end() ? nullptr : found->second();
    }

  private:
    std::map<std::string, Creator> creators;
};

/// Registers a type whose shapes are made with the given constructor arguments.
template <class Shape, auto... Arguments>
bool Register(const char* typeName) {
    return CShapeFactory::GetInstance().Register(typeName,
                                                 []() -> ShapePtr { return std::make_shared<Shape>(Arguments...); });
}

} // namespace rulecanvas
