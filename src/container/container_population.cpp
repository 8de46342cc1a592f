// How shapes come into a container and leave it.

#include "container/container.h"
#include "platform/trace.h"
#include "shape/shape_factory.h"

namespace rulecanvas {
namespace {

void TraceRefusal(const char* shapeName, const Refusal& refusal) {
    if (IsTracing()) {
        Trace("rulecanvas: CreateMainVideoAnalyseShape \"" + std::string(TextOrEmpty(shapeName)) + "\": expected " +
              refusal.expected + ", found " + refusal.found + ", at " + refusal.place);
    }
}

} // namespace

ShapeID CVideoAnalyseContainer::CreateMainShape(ViewID view, const char* label, const char* typeName,
                                                const char* shapeName, const char* config, const char* option) {
    const ShapePtr shape = CShapeFactory::GetInstance().CreateShape(TextOrEmpty(typeName));
    if (shape == nullptr) {
        TraceRefusal(shapeName, {"a registered type", "\"" + std::string(TextOrEmpty(typeName)) + "\"", "type"});
        return 0;
    }
    const ClientRect clientRect = GetClientRect(view);
    const auto end = [&](const ShapePtr* /*unfinished*/) { EndingShapes().Add(shape); };
    std::unique_ptr<const ShapePtr, decltype(end)> unfinished(&shape, end);
    shape->SetContainer(this);
    shape->SetEventName(label);
    shape->SetViewId(view, clientRect);
    shape->SelectShape(true, 0);
    const Refused refused = shape->SetVideoAnalyseShapeData({shapeName, config, option, clientRect});
    if (refused) {
        TraceRefusal(shapeName, *refused);
    }
    if (refused || closed) {
        return 0;
    }
    LockGuard guard(containerMutex);
    shapes.Insert(shape);
    pressIndex.Invalidate();
    fitChanged = true;
    static_cast<void>(unfinished.release());
    return shape->GetShapeId();
}

void CVideoAnalyseContainer::DeleteShape(ShapeID id) {
    const ShapePtr shape = shapes.Find(id);
    LockGuard guard(containerMutex);
    if (shape != nullptr) {
        EndShape(shape);
    } else if (const ShapePtr parent = FindParent(id)) {
        parent->RemoveSubShape(id);
    }
}

void CVideoAnalyseContainer::EndShape(const ShapePtr& shape) {
    if (!shape->ClaimRetirement()) {
        return;
    }
    try {
        shape->ClearShape();
    } catch (...) { // of the host, which hears of it: the shape ends all the same
    }
    try {
        shapes.Erase(shape->GetShapeId());
    } catch (...) {
        shape->DropRetirement(); // without memory it stays
        throw;
    }
    pressIndex.Invalidate();
    EndingShapes().AddClaimed(shape);
}

void CVideoAnalyseContainer::DeleteAllShapes() {
    LockGuard guard(containerMutex);
    EndingShapes ending;
    EndShapes(ending);
}

void CVideoAnalyseContainer::EndShapes(EndingShapes& ending) {
    DebugTrace("DeleteAllVideoAnalyseShape\n");
    LockGuard guard(containerMutex);
    const ShapeSnapshot all = shapes.TakeAll();
    pressIndex.Invalidate();
    for (const ShapePtr& shape : all) {
        ending.Add(shape);
    }
}

} // namespace rulecanvas
