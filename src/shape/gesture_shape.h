#pragma once

#include "shape/shape.h"

namespace rulecanvas {

/// A shape that is drawn and edited with the mouse.
///
/// A gesture begins with a press: the shape enters a state, listens to moves and to the button's release, and takes the
/// mouse capture. It ends with one of EndGesture, ClearShape or Retire; crosses and ovals that were drawn only stop
/// listening. The host hears of it through its callbacks, and may answer any of them by clearing, restarting or deleting
/// the shape. A shape therefore takes its new state before it speaks, and the steps that the host can overtake return
/// false.
class CGestureShape : public CVideoAnalyseShape {
  public:
    CGestureShape();

    /// Leads a press to StartDrawing, ContinueDrawing or StartEditing; a press beside the shape hides its handles.
    void HandleLButtonDownEvent(const ContainerMouseEvent& event, int hitLevel) override;
    void ClearShape() override;
    bool RestartDrawing() override;
    /// All points, or none when one of them would leave the view.
    bool MoveShape(float dx, float dy) override;
    bool AwaitsPaint() const override { return true; }

  protected:
    virtual void StartDrawing(const PointF& press) = 0;
    virtual void ContinueDrawing(const PointF& press);
    virtual void StartEditing(const PointF& press, int hitLevel) = 0;
    /// The answers of the two listeners.
    virtual bool OnMouseMove(const PointF& position) = 0;
    virtual bool OnButtonUp(const PointF& position, const ContainerMouseEvent& event) = 0;

    void Dispose() override;

    /// Whether a paint of the view shows the shape.
    virtual bool IsShownIn(ViewID view) const;
    /// What must happen to the points before a paint copies them.
    virtual void PrepareToDraw();
    virtual void Draw(const ShapeLook& look, IContainerGraphics& surface) = 0;

    /// The part of a new configuration that all shapes share: no points, the selection notification, and only then the
    /// name, the state and the selection.
    void BeginConfiguration(const char* shapeName);

    /// Whether a gesture was begun and not ended yet.
    bool InGesture() const { return subscribed; }
    void BeginGesture(ShapeState gestureState);
    /// Begins the drag of a finished shape: handles, selection and its notification, then the gesture.
    void Grab(ShapeState gestureState);
    /// Makes the shape complete and reports it.
    bool BecomeComplete();
    /// Completes the shape and ends the gesture.
    bool FinishGesture();
    /// Stops listening and releases the capture.
    bool EndGesture();

    /// Stops every step that waits for an answer of the host: the shape is no longer where that step left it.
    void Disturb() { ++revision; }
    /// Runs a callback into the host. False when the host answered by changing the shape.
    template <class Call>
    bool Undisturbed(Call call) {
        const unsigned before = revision;
        call();
        return before == revision && !IsRetired();
    }
    bool NotifySelection();
    bool NotifyState(int previousState, int newState);
    bool Capture(bool take);
    void SendState(int previousState, int newState);
    void Subscribe();
    void Unsubscribe();

    /// A right press while the shape is drawn finishes it.
    void FinishByRightButton(int hitLevel);
    /// A right press on a shape that allows it takes the shape to state 0, clears it and reports that.
    void DeleteByRightButton(int hitLevel);

    /// The position in whole pixels, kept inside the view as seen from `anchor`.
    PointF ClampToView(const PointF& anchor, const PointF& position) const;

    /// False while the view has no size, as that of a minimised window: nothing could be placed in it.
    bool HasView() const;

    /// Whether all points may be used in the shape's view.
    bool AcceptsPoints(const Points& candidates) const;
    /// Whether the shape may be moved to these points.
    virtual bool AcceptsMoved(const Points& moved) const;

    /// Moves the whole shape after the mouse and takes the mouse over as the new anchor; a refused step changes
    /// nothing.
    bool FollowMouse(const PointF& position);

  private:
    bool HearDraw(ViewID view, IContainerGraphics* surface);
    bool HearMouseMove(const ContainerMouseEvent& event);
    bool HearButtonUp(const ContainerMouseEvent& event);
    void SendSelection(int select, int notify);

    MouseListener moveListener;
    MouseListener upListener;
    std::atomic<bool> subscribed{false};
    std::atomic<unsigned> revision{0};
};

} // namespace rulecanvas
