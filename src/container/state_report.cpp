#include "container/state_report.h"

#include "shape/json_text.h"

namespace rulecanvas {
namespace {

Json::Value StateOf(const CVideoAnalyseShape& shape) {
    Json::Value state;
    state["ShapeID"] = static_cast<Json::Int>(shape.GetShapeId());
    state["bSelShape"] = shape.IsSelected();
    state["ShapeName"] = shape.GetName();
    state["ShapeType"] = shape.GetShapeType();
    return state;
}

} // namespace

std::string StateReport(const std::vector<std::shared_ptr<CVideoAnalyseContainer>>& containers) {
    Json::Value report;
    for (const auto& container : containers) {
        for (const ShapePtr& shape : container->ShapesInOrder()) {
            report.append(StateOf(*shape));
        }
    }
    return WriteJson(report);
}

} // namespace rulecanvas
