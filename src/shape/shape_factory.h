#pragma once

#include "shape/shape.h"

#include <map>
#include <memory>
#include <string>

namespace rulecanvas {

/// Makes shapes by type name. Every shape class registers itself during static initialisation, so the map never changes
/// while a host can call.
class CShapeFactory {
  public:
    using Creator = std::unique_ptr<CVideoAnalyseShape> (*)();

    static CShapeFactory& GetInstance();

    /// False, with the earlier creator kept, when the name is taken.
    bool Register(const std::string& typeName, Creator creator);

    /// Null for an unknown name. Names are compared byte for byte.
    std::unique_ptr<CVideoAnalyseShape> CreateShape(const std::string& typeName) const;

  private:
    std::map<std::string, Creator> creators;
};

/// A creator for `CShapeFactory::Register`: a new `Shape` made with the given constructor arguments.
template <class Shape, auto... Arguments>
std::unique_ptr<CVideoAnalyseShape> MakeShape() {
    return std::make_unique<Shape>(Arguments...);
}

} // namespace rulecanvas
