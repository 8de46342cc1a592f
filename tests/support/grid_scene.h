// A container without a host around it, for what is tested through classes.

#pragma once

#include "container/container.h"
#include "support/types.h"

namespace rulecanvas::test {

constexpr ClientRect GridRect{0, 0, GridView, GridView};

/// A container whose views are as large as the grid. It counts how often it asks for that.
struct GridScene {
    CVideoAnalyseContainer container{nullptr};
    size_t questions = 0;

    GridScene() {
        container.SetClientRectDelegate(CDelegate{this, reinterpret_cast<void*>(&ReportRect)});
        container.SetPixelCount(GridView, GridView);
        container.Enable(true);
    }
    ~GridScene() { container.Close(); }

    ShapeID Add(const char* type, const char* config = "") {
        return container.CreateMainShape(0, "", type, "rule", config, "");
    }
    /// The only one.
    ShapePtr OnlyShape() { return *container.ShapesInOrder().begin(); }
    void Send(uint32_t code, const PointF& at) { container.OnMouseEvent({code, 0, 0, at.x, at.y, 0, 0}); }

  private:
    static void RULECANVAS_THISCALL ReportRect(void* self, ViewID /*view*/, ClientRect* out) {
        ++static_cast<GridScene*>(self)->questions;
        *out = GridRect;
    }
};

} // namespace rulecanvas::test
