#include "docs/figure_behaviour.h"
#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace rulecanvas::test {
namespace {

/// In a view of this size a pixel is a step of the grid.
constexpr int ViewSide = 8191;

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

bool IsOneOf(const std::string& type, const std::vector<std::string>& types) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool IsBox(const std::string& type) {
    return IsOneOf(type, {"Rect", "PixelCountShape", "OvalShape"});
}

PointF InsideOf(const std::string& type) {
    return IsBox(type) ? PointF{2000, 2500} : PointF{3000, 1500};
}

/// Where a press begins to move the complete figure.
PointF GripOf(const std::string& type) {
    if (IsOneOf(type, {"BrokenLine", "Polygon", "VirablePolygon"})) {
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

std::string RivalText(const PointF& corner) {
    constexpr int side = 60;
    const int x = static_cast<int>(corner.x);
    const int y = static_cast<int>(corner.y);
    return "{\"rival\":[[" + std::to_string(x) + "," + std::to_string(y) + "],[" + std::to_string(x + side) + "," +
           std::to_string(y + side) + "]]}";
}

/// A figure of the type in the state and with the selection that a column names, and perhaps a rectangle as a rival,
/// which sleeps until it is woken.
class Scene {
  public:
    Scene(const std::string& figureType, const std::string& stateAndPlace)
        : type(figureType), column(stateAndPlace), host(ViewSide, ViewSide) {
        host.container.SetVideoSize(ViewSide, ViewSide);
    }

    void AddRival(const PointF& corner) {
        const std::string text = RivalText(corner);
        rival = host.container.AddShape({TheView, "Rect", "label", "rival", text.c_str()});
        host.container.EnableShape(rival, false);
    }

    void AddFigure() {
        const bool drawn = column != "1" && column != "2";
        const ShapeID figure = host.Add(type.c_str(), drawn ? Geometry() : "");
        host.Paint(); // which places a pixel counter
        if (column == "2") {
            host.Press(4000, 4000);
            host.Move(4100, 4100);
        } else if (column == "4") {
            const PointF grip = GripOf(type);
            host.Press(grip.x, grip.y);
        } else if (column == "5") {
            host.Press(FirstPoint.x, FirstPoint.y);
        } else if (column == "3, beside and not selected") {
            host.container.SelectShape(figure, false);
        }
    }

    /// Whether the press goes to the rival.
    bool PressWakesRival(const PointF& place) {
        host.container.EnableShape(rival);
        host.TakeLog();
        host.Press(place.x, place.y);
        const Lines log = host.TakeLog();
        return std::find(log.begin(), log.end(), "select rival") != log.end();
    }

    /// Whether anybody answers a press, which removes the tip.
    bool PressRemovesTip(const PointF& place) {
        host.container.SetTip(TheView, "tip");
        host.Press(place.x, place.y);
        const Lines painted = host.Paint();
        return std::none_of(painted.begin(), painted.end(),
                            [](const std::string& call) { return call.find("\"tip\"") != std::string::npos; });
    }

  private:
    std::string Geometry() const { return type == "PixelCountShape" ? R"({"rule":[6191,6191]})" : GeometryOf(type); }

    std::string type;
    std::string column;
    ScenarioHost host;
    ShapeID rival = 0;
};

/// The level, found out by rivals: a rectangle answers 5 on a corner and 4 inside, and of equals the earlier figure wins.
int LevelOf(const std::string& type, const std::string& column) {
    const PointF place = PlaceOf(type, column);
    const PointF corner{place.x - 30, place.y - 30};
    const auto earlierRivalWins = [&](const PointF& rivalCorner) {
        Scene scene(type, column);
        scene.AddRival(rivalCorner);
        scene.AddFigure();
        return scene.PressWakesRival(place);
    };
    if (!earlierRivalWins(place)) {
        return 6;
    }
    if (!earlierRivalWins(corner)) {
        return 5;
    }
    Scene laterRival(type, column);
    laterRival.AddFigure();
    laterRival.AddRival(corner);
    if (!laterRival.PressWakesRival(place)) {
        return 4;
    }
    Scene alone(type, column);
    alone.AddFigure();
    return alone.PressRemovesTip(place) ? 3 : 0;
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
