// Whatever is done to a polygon with the mouse, in whatever order, its edges stay apart and a convex one stays convex.

#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace rulecanvas::test {
namespace {

using Ring = std::vector<PointF>;

/// Exact, because all places are halves of a pixel.
double Turn(const PointF& a, const PointF& b, const PointF& c) {
    return static_cast<double>((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y));
}

bool Meet(const PointF& a, const PointF& b, const PointF& c, const PointF& d) {
    return std::max(a.x, b.x) >= std::min(c.x, d.x) && std::max(c.x, d.x) >= std::min(a.x, b.x) &&
           std::max(a.y, b.y) >= std::min(c.y, d.y) && std::max(c.y, d.y) >= std::min(a.y, b.y) &&
           Turn(a, b, c) * Turn(a, b, d) <= 0 && Turn(c, d, a) * Turn(c, d, b) <= 0;
}

bool EdgesMeet(const Ring& ring, bool closed) {
    const size_t n = ring.size();
    const size_t edges = closed || n == 0 ? n : n - 1;
    for (size_t i = 0; i < edges; ++i) {
        for (size_t j = i + 2; j < edges && (j + 1) % n != i; ++j) {
            if (Meet(ring[i], ring[i + 1], ring[j], ring[(j + 1) % n])) {
                return true;
            }
        }
    }
    return false;
}

bool IsConcave(const Ring& ring) {
    for (size_t i = 0; i < ring.size(); ++i) {
        double least = 0;
        double most = 0;
        for (const PointF& vertex : ring) {
            const double side = Turn(ring[i], ring[(i + 1) % ring.size()], vertex);
            least = std::min(least, side);
            most = std::max(most, side);
        }
        if (least <= -1 && most >= 1) { // less than a square pixel counts as straight
            return true;
        }
    }
    return false;
}

/// Reads the vertices off the lines that a polygon draws: one from each vertex to the next, and the rubber line or the
/// closing edge from the last one.
class VertexReader final : public Surface {
  public:
    Ring vertices;

    void StrokeLine(const PointF& from, const PointF&, float, const ColorF&, int32_t) override {
        vertices.push_back(from);
    }
};

/// A long row of events without a plan, the same on every machine, in a view of 60 x 48 pixels or up to five pixels
/// beside it.
void Play(const char* type, const char* option) {
    static constexpr uint32_t codes[] = {
        RULECANVAS_MOUSE_LEFT_DOWN,    RULECANVAS_MOUSE_LEFT_DOWN,   RULECANVAS_MOUSE_LEFT_DOWN,
        RULECANVAS_MOUSE_LEFT_UP,      RULECANVAS_MOUSE_LEFT_UP,     RULECANVAS_MOUSE_MOVED,
        RULECANVAS_MOUSE_MOVED,        RULECANVAS_MOUSE_RIGHT_DOWN,  RULECANVAS_MOUSE_RIGHT_UP,
        RULECANVAS_MOUSE_CURSOR_QUERY, RULECANVAS_MOUSE_MOVED_EVENT, RULECANVAS_MOUSE_ALT_RIGHT_DOWN};
    std::mt19937 random;
    const auto pick = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    FigureHost host(type, "", option, 60, 48);
    bool closed = false;
    std::map<std::string, int> heard;
    for (int event = 0; event < 20000; ++event) {
        if (pick(60) == 0) {
            host.container.RedrawShape(host.shape);
            host.container.SetPointLimits(host.shape, 3 + pick(8), 3);
            closed = false;
        }
        const PointF place{static_cast<float>(pick(140)) / 2 - 5, static_cast<float>(pick(116)) / 2 - 5};
        host.Send(codes[pick(std::size(codes))], place.x, place.y);
        for (const std::string& entry : host.TakeLog()) {
            ++heard[entry];
            closed = entry.rfind("state ", 0) == 0 ? entry.back() == '3' : closed;
        }
        VertexReader reader;
        host.container.Paint(TheView, reader);
        ASSERT_FALSE(EdgesMeet(reader.vertices, closed)) << "event " << event;
        ASSERT_FALSE(*option != '\0' && IsConcave(reader.vertices)) << "event " << event;
    }
    for (const char* change : {"state rule 2>3", "state rule 4>3", "state rule 5>3"}) {
        EXPECT_GT(heard[change], 100) << change;
    }
}

TEST(AnyGesture, KeepsTheEdgesOfAPolygonApart) {
    for (const char* option : {"", "Convex"}) {
        SCOPED_TRACE(option);
        Play("Polygon", option);
    }
}

} // namespace
} // namespace rulecanvas::test
