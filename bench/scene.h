#pragma once

#include <rulecanvas/host.hpp>

#include <array>
#include <string>
#include <vector>

namespace rulecanvas::bench {

constexpr ViewID View = 1;
constexpr std::array<const char*, 3> Kinds{"Rect", "LineShape", "Polygon"};

/// A view full of complete, deselected figures of one kind, side by side, all of which stay clear of the top left
/// corner.
class Scene {
  public:
    /// The scene of `count` figures of a kind. Made when it is first asked for and kept: the end of every
    /// figure waits for paints that may still run, which would take longer than all measurements.
    static Scene& Of(int kind, int count);

    /// Figures of all scenes made so far.
    static int TotalCount();

    Scene(int kind, int count);

    void Send(MouseCode code, const PointF& at) { container.SendMouse(code, View, at.x, at.y); }
    /// One more figure, in the `place`th cell of the scene.
    ShapeID Add(int place);

    Container container;
    std::vector<ShapeID> shapes;
    ClientRect clientRect;
    /// Of the figure that a hit test reaches last, in pixels.
    PointF firstCornerOfLast;
    double secondsToLoad = 0.0;
    double bytesPerShape = 0.0;

  private:
    const std::string type;
    const int columns;
};

} // namespace rulecanvas::bench
