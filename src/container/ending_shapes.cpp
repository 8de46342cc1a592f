#include "container/ending_shapes.h"

#include <algorithm>

namespace rulecanvas {

void EndingShapes::Add(const ShapePtr& shape) noexcept {
    if (shape->ClaimRetirement()) {
        AddClaimed(shape);
    }
}

void EndingShapes::AddClaimed(const ShapePtr& shape) noexcept {
    shape->Retire();
    try {
        shapes.push_back(shape);
    } catch (...) { // without memory for the wait, the figure is freed with the shape, after the last paint of it
    }
}

EndingShapes::~EndingShapes() {
    constexpr int milliseconds = 10; // long enough for a paint to finish with a figure
    if (std::any_of(shapes.begin(), shapes.end(), [](const ShapePtr& shape) { return shape->AwaitsPaint(); })) {
        platform::Pause(milliseconds);
    }
    for (const ShapePtr& shape : shapes) {
        shape->FreeFigure();
    }
}

} // namespace rulecanvas
