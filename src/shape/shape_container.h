#pragma once

#include "shape/delegate.h"
#include "shape/types.h"

#include <memory>
#include <string>

namespace rulecanvas {

class CVideoAnalyseShape;

enum class MouseListenerKind { ButtonUp = 2, RightButtonUp = 5, MouseMoved = 6 };

using MouseListener = Delegate<bool(const ContainerMouseEvent&)>;
using DrawListener = Delegate<bool(ViewID, IContainerGraphics*)>;
using ShapeOwner = std::weak_ptr<CVideoAnalyseShape>;

/// All that a shape knows of its container.
class IShapeContainer {
  public:
    /// The client rectangle that the host reports for the view; all zeros without a report.
    virtual ClientRect GetClientRect(ViewID view) = 0;
    /// Whether the point lies in (0, 0) to (width, height) of the view, the borders included.
    virtual bool IsInClientArea(ViewID view, const PointF& point) = 0;
    /// Asks the host to take or release the mouse capture; its answer.
    virtual bool RequestCapture(bool take) = 0;
    /// A listener is called only as long as its owner lives.
    virtual void RegisterWinMouseEvent(MouseListenerKind kind, const ShapeOwner& owner,
                                       const MouseListener& listener) = 0;
    virtual void unRegisterWinMouseEvent(MouseListenerKind kind, const MouseListener& listener) = 0;
    virtual void RegisterDrawEvent(const ShapeOwner& owner, const DrawListener& listener) = 0;
    virtual void unRegisterDrawEvent(const DrawListener& listener) = 0;
    virtual void SendHostHint(uint32_t value) = 0;
    virtual void Notify(const std::string& event) = 0;
    /// The resolution of the video in pixels; zeros until the host gives it.
    virtual ViewSize GetPixelCount() = 0;

  protected:
    ~IShapeContainer() = default;
};

} // namespace rulecanvas
