#include "rulecanvas/surface.hpp"
#include "support/grid_scene.h"

#include <gtest/gtest.h>

namespace rulecanvas::test {
namespace {

constexpr PointF FirstPoint{1000, 1000};
constexpr PointF Elsewhere{7800, 500};

struct Cell {
    const char* type;
    const char* column;
    const char* level;
};

const Cell Cells[] = {
#include "hit_levels.inc"
};

bool IsBox(const std::string& type) {
    return type == "Rect" || type == "PixelCountShape" || type == "OvalShape";
}

PointF InsideOf(const std::string& type) {
    return IsBox(type) ? PointF{2000, 2500} : PointF{3000, 1500};
}

/// Where a press begins to move the complete figure.
PointF GripOf(const std::string& type) {
    if (type == "BrokenLine" || type == "Polygon" || type == "VirablePolygon") {
        return {2001, 1999};
    }
    if (type == "SpotShape") {
        return FirstPoint;
    }
    return IsBox(type) ? InsideOf(type) : PointF{2000, 2000};
}

PointF PlaceOf(const std::string& type, const std::string& column) {
    if (column == "3, on it") {
        return FirstPoint;
    }
    return column == "3, inside" ? InsideOf(type) : Elsewhere;
}

/// Brings the figure into the state and to the selection that a column names.
void Enter(GridScene& scene, ShapeID figure, const std::string& type, const std::string& column) {
    Surface surface;
    scene.container.OnDraw(0, surface); // which places a pixel counter
    if (column == "2") {
        scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, {4000, 4000});
        scene.Send(RULECANVAS_MOUSE_MOVED, {4100, 4100});
    } else if (column == "4") {
        scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, GripOf(type));
    } else if (column == "5") {
        scene.Send(RULECANVAS_MOUSE_LEFT_DOWN, FirstPoint);
    } else if (column == "3, beside and not selected") {
        scene.container.SelectShape(figure, false);
    }
}

int LevelOf(const std::string& type, const std::string& column) {
    GridScene scene;
    const bool drawn = column != "1" && column != "2";
    Enter(scene, scene.Add(type.c_str(), drawn ? ConfigOf(type) : ""), type, column);
    const ShapePtr shape = scene.OnlyShape();
    if (column.size() == 1) {
        EXPECT_EQ(std::to_string(shape->GetState()), column) << type;
    }
    const PointF place = PlaceOf(type, column);
    int level = Miss;
    shape->HitTestLButtonDown({RULECANVAS_MOUSE_LEFT_DOWN, 0, 0, place.x, place.y, 0, 0}, level);
    return level;
}

TEST(DocumentedHitLevels, AreThoseOfTheTable) {
    size_t told = 0;
    for (const Cell& cell : Cells) {
        const std::string level = cell.level;
        if (!level.empty()) {
            ++told;
            EXPECT_EQ(std::to_string(LevelOf(cell.type, cell.column)), level) << cell.type << " in " << cell.column;
        }
    }
    EXPECT_GT(told, 90U);
}

} // namespace
} // namespace rulecanvas::test
