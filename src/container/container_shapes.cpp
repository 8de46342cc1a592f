// The operations on single shapes.

#include "container/container.h"

namespace rulecanvas {

uint32_t CVideoAnalyseContainer::AddToShape(ShapeID id, uint32_t first, uint32_t second, uint32_t third) {
    const ShapePtr shape = shapes.Find(id);
    return shape == nullptr ? 0 : shape->AddSubShape(first, second, third);
}

bool CVideoAnalyseContainer::SelectShape(ShapeID id, bool select) {
    const ShapePtr shape = DeepFind(id);
    return shape != nullptr && shape->SelectShape(select, 1);
}

int CVideoAnalyseContainer::SetShapeDirection(ShapeID id, int direction) {
    if (const ShapePtr shape = shapes.Find(id)) {
        shape->SetShapeDirection(id, direction);
    }
    const ShapePtr parent = FindParent(id);
    return parent == nullptr ? 0 : parent->SetShapeDirection(id, direction);
}

bool CVideoAnalyseContainer::GetShapeConfig(ShapeID id, char* buffer, int size) {
    const ShapePtr shape = DeepFind(id);
    return shape != nullptr && shape->GetVideoAnalyseShapeConfigData(buffer, size);
}

bool CVideoAnalyseContainer::RedrawShape(ShapeID id) {
    ShapePtr shape = shapes.Find(id);
    if (shape == nullptr) {
        shape = FindParent(id);
    }
    return shape != nullptr && shape->RestartDrawing();
}

ShapeID CVideoAnalyseContainer::GetSelectedShape() {
    for (const ShapePtr& shape : shapes.InOrder()) {
        if (shape->IsSelected()) {
            return shape->GetShapeId();
        }
    }
    return 0;
}

void CVideoAnalyseContainer::SetShowName(ShapeID id, const char* text) {
    if (const ShapePtr shape = shapes.Find(id)) {
        shape->SetShowNameText(text);
    } else if (const ShapePtr parent = FindParent(id)) {
        parent->SetSubShapeShowName(id, text);
    }
}

ShapePtr CVideoAnalyseContainer::DeepFind(ShapeID id) const {
    if (ShapePtr shape = shapes.Find(id)) {
        return shape;
    }
    const ShapePtr parent = FindParent(id);
    return parent == nullptr ? nullptr : ShapePtr(parent, parent->FindSubShape(id));
}

ShapePtr CVideoAnalyseContainer::FindParent(ShapeID id) const {
    for (const ShapePtr& shape : shapes.Composites()) {
        if (shape->FindSubShape(id) != nullptr) {
            return shape;
        }
    }
    return nullptr;
}

} // namespace rulecanvas
