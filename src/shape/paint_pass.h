#pragma once

#include "shape/shape_container.h"
#include "shape/shape_look.h"

#include <optional>

namespace rulecanvas {

/// One paint of one view: what is drawn on, and the answers of the host, each asked for once.
class PaintPass {
  public:
    /// `reused` is where the figures are copied to, one after the other.
    PaintPass(IShapeContainer& owner, ViewID paintedView, IContainerGraphics& graphics, const ClientRect& ofViewZero,
              ShapeLook& reused)
        : view(paintedView), surface(graphics), viewZero(ofViewZero), look(reused), container(owner) {}

    const ViewID view;
    IContainerGraphics& surface;
    /// The rectangle that all figures are fitted to.
    const ClientRect viewZero;
    ShapeLook& look;

    /// The client rectangle of the painted view; asks the host for it, unless it was asked.
    const ClientRect& AskPaintedRect() {
        if (!painted) {
            painted = view == 0 ? viewZero : container.GetClientRect(view);
        }
        return *painted;
    }
    /// The same, or null while it was not asked for.
    const ClientRect* PaintedRect() const { return painted ? &*painted : nullptr; }

  private:
    IShapeContainer& container;
    std::optional<ClientRect> painted;
};

} // namespace rulecanvas
