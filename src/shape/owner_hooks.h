#pragma once

#include "shape/delegate.h"
#include "shape/types.h"

namespace rulecanvas {

/// What a figure that is made of others may set on them. No shape type of this version is made of others: all hooks are
/// empty there, and an empty hook leaves the shape to itself.
struct OwnerHooks {
    /// Whether a point may be used in a view; in place of the view's own client area.
    Delegate<bool(ViewID, const PointF&)> AdjustPointCoordinateHook;
    /// Called in place of the notifications.
    Delegate<void(int, int)> SelectNotifyHook;
    Delegate<void(int, int)> StateNotifyHook;
    /// Whether a list of points is acceptable; the flag marks a list that is complete.
    Delegate<bool(const Points&, bool)> ValidationHook;
    Delegate<bool(const Points&)> GeometryCheckHook;
    /// The pointer rests over the finished figure.
    Delegate<void(const PointF&)> CursorHook;
    /// A drawing was finished, and is about to be reported.
    Delegate<void(const ContainerMouseEvent&)> CreationFinishedHook;
};

} // namespace rulecanvas
