#include "shape/notifications.h"

#include "shape/json_text.h"

namespace rulecanvas {
namespace {

Json::Value EventOf(const CVideoAnalyseShape& shape) {
    Json::Value root;
    root["EventName"] = shape.GetEventName();
    Json::Value& parameters = root["EventParam"];
    parameters["ShapeName"] = shape.GetName();
    parameters["ShapeID"] = static_cast<double>(shape.GetShapeId());
    return root;
}

} // namespace

std::string SelectionEvent(const CVideoAnalyseShape& shape) {
    return WriteJson(EventOf(shape));
}

std::string StateEvent(const CVideoAnalyseShape& shape, int previousState, int newState) {
    Json::Value root = EventOf(shape);
    root["EventParam"]["PreShapeState"] = previousState;
    root["EventParam"]["ShapeState"] = newState;
    return WriteJson(root);
}

Json::Value StateOf(const CVideoAnalyseShape& shape) {
    Json::Value state;
    state["ShapeID"] = static_cast<Json::Int>(shape.GetShapeId());
    state["bSelShape"] = shape.IsSelected();
    state["ShapeName"] = shape.GetName();
    state["ShapeType"] = shape.GetShapeType();
    return state;
}

} // namespace rulecanvas
