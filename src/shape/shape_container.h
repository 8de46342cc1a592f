#pragma once

#include "shape/types.h"

#include <memory>
#include <string>

namespace rulecanvas {

class CVideoAnalyseShape;
using ShapePtr = std::shared_ptr<CVideoAnalyseShape>;

enum class MouseListenerKind { ButtonUp = 2, RightButtonUp = 5, MouseMoved = 6 };

/// All that a shape knows of its container.
class IShapeContainer {
  public:
    /// The client rectangle that the host reports for the view; all zeros without a report.
    virtual ClientRect GetClientRect(ViewID view) = 0;
    /// Asks the host to take or release the mouse capture.
    virtual void RequestCapture(bool take) = 0;
    /// A listener hears the events of its kind, in the order of registration, until it is unregistered.
    virtual void RegisterWinMouseEvent(MouseListenerKind kind, const ShapePtr& listener) = 0;
    virtual void unRegisterWinMouseEvent(MouseListenerKind kind, CVideoAnalyseShape& listener) = 0;
    /// Paints draw the shape from now on.
    virtual void RegisterDrawEvent(const ShapePtr& listener) = 0;
    virtual void unRegisterDrawEvent(CVideoAnalyseShape& listener) = 0;
    /// Asks the host for a pointer hint. For figures that guide the user; none of this version does.
    virtual void SendHostHint(uint32_t value) = 0;
    /// Whether anyone hears notifications.
    virtual bool HasNotifyDelegate() const = 0;
    virtual void Notify(const std::string& event) = 0;
    /// The resolution of the video in pixels; zeros until the host gives it.
    virtual ViewSize GetPixelCount() = 0;
    /// What the shape would answer to a press may have changed.
    virtual void ClaimChanged(CVideoAnalyseShape& shape) = 0;
    /// The shape's points are fitted to a view other than the last paint's.
    virtual void FitChanged() = 0;

  protected:
    ~IShapeContainer() = default;
};

} // namespace rulecanvas
