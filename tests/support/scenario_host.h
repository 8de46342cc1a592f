#pragma once

#include "rulecanvas/host.hpp"
#include "support/recording_surface.h"
#include "support/types.h"

#include <functional>
#include <optional>
#include <string>

namespace rulecanvas::test {

constexpr ViewID TheView = 7;

/// A host with one enabled container and one view, of 800 x 600 pixels at first, that writes down what the library
/// says:
///
///     select rule            a selection notification of the shape named "rule"
///     state rule 2>3         a state notification
///     capture on/off         the mouse capture is asked for or given back
///     redraw, hint 4         the host object is called
///
/// A notification that is not exactly of the documented form is written down as it came. `onEntry` runs inside each of
/// these callbacks and may call back; also, unwritten, for "client rect" and for "drawing".
class ScenarioHost {
  public:
    explicit ScenarioHost(int width = 800, int height = 600);

    /// What was written down since the last call.
    Lines TakeLog();

    /// A shape labelled "label". Forgets what was written down while it was made.
    ShapeID Add(const char* type, const std::string& config = "", const std::string& option = "",
                const char* name = "rule");

    void Press(float x, float y) { Send(RULECANVAS_MOUSE_LEFT_DOWN, x, y); }
    void Move(float x, float y) { Send(RULECANVAS_MOUSE_MOVED, x, y); }
    void Release(float x, float y) { Send(RULECANVAS_MOUSE_LEFT_UP, x, y); }
    void Click(float x, float y) {
        Press(x, y);
        Release(x, y);
    }
    void RightPress(float x, float y) { Send(RULECANVAS_MOUSE_RIGHT_DOWN, x, y); }
    /// Press, one move to the end, release there.
    void Drag(const PointF& from, const PointF& to) {
        Press(from.x, from.y);
        Move(to.x, to.y);
        Release(to.x, to.y);
    }
    void Send(uint32_t code, float x, float y, ViewID view = TheView) {
        container.SendMouse(static_cast<MouseCode>(code), view, x, y);
    }

    /// What a paint of the view draws.
    Lines Paint(ViewID view = TheView);
    /// The configuration text without its final line feed; empty when there is none.
    std::string Config(ShapeID shape);
    void Resize(int width, int height) { clientRect = ClientRect{0, 0, width, height}; }

    ClientRect clientRect;
    /// What view 0 answers instead.
    std::optional<ClientRect> rectOfViewZero;
    std::function<void(const std::string&)> onEntry;
    std::string lastEventText;

  private:
    void Write(const std::string& entry);
    void Tell(const std::string& entry);

    Lines log;
    HostObject hostObject;

  public:
    Container container;
};

/// A host with a figure.
struct FigureHost : ScenarioHost {
    ShapeID shape;

    explicit FigureHost(const char* type, const std::string& config = "", const std::string& option = "",
                        int width = 800, int height = 600)
        : ScenarioHost(width, height), shape(Add(type, config, option)) {}
    using ScenarioHost::Config;
    std::string Config() { return Config(shape); }
};

/// A host with a figure in a view that is as large as the grid.
struct GridHost : FigureHost {
    explicit GridHost(const char* type, const std::string& config = "", const std::string& option = "")
        : FigureHost(type, config, option, GridView, GridView) {}
};

} // namespace rulecanvas::test
