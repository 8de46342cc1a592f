#include "shape/shape_factory.h"

namespace rulecanvas {

CShapeFactory& CShapeFactory::GetInstance() {
    static CShapeFactory factory;
    return factory;
}

bool CShapeFactory::Register(const std::string& typeName, Creator creator) {
    return creators.emplace(typeName, creator).second;
}

ShapePtr CShapeFactory::CreateShape(const std::string& typeName) const {
    const auto found = creators.find(typeName);
    return found == creators.end() ? nullptr : found->second();
}

} // namespace rulecanvas
