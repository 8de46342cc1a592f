// Two scenes to which the same happens. In one a press asks only the figures near it, in the other every figure.

#pragma once

#include "container/container.h"
#include "rulecanvas/surface.hpp"
#include "support/types.h"

#include <functional>
#include <string>
#include <vector>

namespace rulecanvas::test {

constexpr int ViewWidth = 400;
constexpr int ViewHeight = 300;
constexpr int SmallWidth = 320;
constexpr uint32_t HostTableSize = RULECANVAS_HOST_REQUEST_REDRAW + 1;

/// A host that answers nothing but its client rectangle, and counts the hints.
struct QuietHost {
    using Operation = void(RULECANVAS_THISCALL*)(void*, uint32_t);

    const Operation* table = Table();
    int hints = 0;
    int width = ViewWidth;

    static void RULECANVAS_THISCALL Hint(void* self, uint32_t /*value*/) { ++static_cast<QuietHost*>(self)->hints; }
    static void RULECANVAS_THISCALL Ignore(void* /*self*/, uint32_t /*value*/) {}
    static const Operation* Table() {
        static Operation operations[HostTableSize] = {};
        operations[RULECANVAS_HOST_SET_INTERACTION_HINT] = &Hint;
        operations[RULECANVAS_HOST_REQUEST_REDRAW] = &Ignore;
        return operations;
    }
    static void RULECANVAS_THISCALL ReportRect(void* self, ViewID /*view*/, ClientRect* out) {
        *out = ClientRect{0, 0, static_cast<QuietHost*>(self)->width, ViewHeight};
    }
};

struct Scene {
    QuietHost host;
    CVideoAnalyseContainer container{&host};

    Scene() {
        container.SetClientRectDelegate(CDelegate{&host, reinterpret_cast<void*>(&QuietHost::ReportRect)});
        container.SetPixelCount(640, 480);
        container.Enable(true);
    }
    ~Scene() { container.Close(); }
};

/// The press as it is described: every enabled figure of the view in turn, the strongest claim wins. The level.
inline int PressAskingAll(CVideoAnalyseContainer& container, const ContainerMouseEvent& event) {
    const bool isLeft = event.code == RULECANVAS_MOUSE_LEFT_DOWN;
    ShapePtr winner;
    int best = Miss;
    for (const ShapePtr& shape : container.ShapesInOrder()) {
        if (!shape->IsEnabled() || shape->GetViewId() != event.viewId) {
            continue;
        }
        int level = Miss;
        const auto* answering =
            isLeft ? shape->HitTestLButtonDown(event, level) : shape->HitTestRButtonDown(event, level);
        if (isLeft && answering != nullptr && level == Outside && shape->IsSelected()) {
            shape->SelectShape(false, 1);
        }
        if (best < level) {
            best = level;
            winner = shape;
        }
    }
    if (winner != nullptr && isLeft) {
        winner->HandleLButtonDownEvent(PointerEvent{event, container.GetClientRect(event.viewId)}, best);
    } else if (winner != nullptr) {
        winner->HandleRButtonEvent(event, best);
    }
    return best;
}

inline std::string Described(CVideoAnalyseContainer& container) {
    std::string text;
    for (const ShapePtr& shape : container.ShapesInOrder()) {
        Points points;
        shape->GetShapePoints(points);
        text += std::to_string(shape->GetState()) + (shape->IsSelected() ? "s" : "") + "[";
        for (const PointF& point : points) {
            text += std::to_string(point.x) + "," + std::to_string(point.y) + " ";
        }
        text += "] ";
    }
    return text;
}

/// Plays the same events on a scene that is asked near the press and on one that is asked whole.
class TwoScenes {
  public:
    /// `choices` decide what happens: a number from 0 up to below the given one.
    explicit TwoScenes(std::function<int(int)> choices) : source(std::move(choices)) {}

    /// Lets one thing happen. Whether both scenes are the same afterwards.
    bool Step() {
        Happen();
        return sameLevel && Described(fast.container) == Described(plain.container);
    }

  private:
    int Pick(int limit) { return source(limit); }
    PointF Place() {
        return {static_cast<float>(Pick(2 * ViewWidth)) / 2 - 2, static_cast<float>(Pick(2 * ViewHeight)) / 2 - 2};
    }
    ViewID View() { return static_cast<ViewID>(Pick(8) == 0 ? 1 : 0); }

    void Happen() {
        const int what = Pick(16);
        what < 1    ? Add()
        : what <= 2 ? ChangeOne()
        : what == 3 ? Refit()
        : what < 7  ? Send(RULECANVAS_MOUSE_MOVED)
        : what < 10 ? Send(RULECANVAS_MOUSE_LEFT_UP)
                    : Press(what == 10 ? RULECANVAS_MOUSE_RIGHT_DOWN : RULECANVAS_MOUSE_LEFT_DOWN);
    }

    /// All at once, or by a paint; the view may have another size now.
    void Refit() {
        const int how = Pick(3);
        const int width = Pick(4) == 0 ? SmallWidth : ViewWidth;
        for (Scene* scene : {&fast, &plain}) {
            scene->host.width = width;
        }
        Both([&](CVideoAnalyseContainer& container) {
            Surface surface;
            how == 0 ? container.InvalidateAll() : container.OnDraw(static_cast<ViewID>(how - 1), surface);
        });
    }

    template <class Call>
    void Both(Call call) {
        call(fast.container);
        call(plain.container);
    }

    void Add() {
        static const char* const options[] = {"", "EnableRBtnDelete", "Convex", "2"};
        const char* type = Types[Pick(static_cast<int>(std::size(Types)))].name;
        const char* option = options[Pick(static_cast<int>(std::size(options)))];
        const auto corner = [&] { return "[" + std::to_string(Pick(9000)) + "," + std::to_string(Pick(9000)) + "]"; };
        const bool isCounter = type == std::string("PixelCountShape"); // it has a size instead of corners
        const std::string points = isCounter ? corner() : "[" + corner() + "," + corner() + "]";
        const std::string config = Pick(3) == 0 ? "" : R"({"rule":)" + points + R"(,"OvalShape":)" + points + "}";
        const ViewID view = View();
        Both([&](CVideoAnalyseContainer& container) {
            container.CreateMainShape(view, "", type, "rule", config.c_str(), option);
        });
    }

    void ChangeOne() {
        const int which = Pick(8);
        const int place = Pick(12);
        const Points points{Place(), Place(), Place(), Place()};
        Both([&](CVideoAnalyseContainer& container) {
            const auto snapshot = container.ShapesInOrder();
            const std::vector<ShapePtr> shapes(snapshot.begin(), snapshot.end());
            if (place >= static_cast<int>(shapes.size())) {
                return;
            }
            const ShapePtr& shape = shapes[static_cast<size_t>(place)];
            const ShapeID id = shape->GetShapeId();
            if (which == 0) {
                container.DeleteShape(id);
            } else if (which == 1) {
                container.DeepFind(id)->EnableShape(shape->IsEnabled() == (place % 2 == 0));
            } else if (which == 2) {
                container.SelectShape(id, place % 2 == 0);
            } else if (which == 3) {
                container.RedrawShape(id);
            } else if (which == 4) {
                shape->SetShapePoints(points);
            } else if (which == 5) {
                shape->SetVideoAnalyseShapeData(
                    {"rule", R"({"rule":[[4000,4000],[5000,5000]]})", "", {0, 0, 400, 300}});
            } else if (which == 6) {
                shape->MoveShape((points[0].x - points[1].x) / 8, (points[0].y - points[1].y) / 8);
            } else {
                container.DeepFind(id)->SetMaxPtNum(place % 4, 3);
            }
        });
    }

    void Send(uint32_t code) {
        const PointF at = Place();
        const ViewID view = View();
        Both([&](CVideoAnalyseContainer& container) { container.OnMouseEvent({code, view, 0, at.x, at.y, 0, 0}); });
    }

    void Press(uint32_t code) {
        const PointF at = Place();
        const ContainerMouseEvent event{code, View(), 0, at.x, at.y, 0, 0};
        fast.container.OnMouseEvent(event);
        const int level = PressAskingAll(plain.container, event);
        const int before = fast.host.hints;
        fast.container.OnMouseEvent({RULECANVAS_MOUSE_CURSOR_QUERY, event.viewId + 2, 0, at.x, at.y, 0, 0});
        sameLevel = fast.host.hints - before == (level == Inside || level == OnOutline ? 1 : 0);
    }

    const std::function<int(int)> source;
    bool sameLevel = true;
    Scene fast;
    Scene plain;
};

} // namespace rulecanvas::test
