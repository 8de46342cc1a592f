#pragma once

#include "geometry/hit_tests.h"
#include "shape/claim.h"
#include "shape/configuration.h"
#include "shape/json_text.h"
#include "shape/outcome.h"
#include "shape/paint_pass.h"
#include "shape/shape.h"

namespace rulecanvas {

/// A shape that is drawn and edited with the mouse.
///
/// A gesture begins with a press: the shape enters a state, listens to moves and to the button's release, and takes the
/// mouse capture. It is fed by moves, and ends with a release or when the shape is cleared, drawn anew or retired.
///
/// Every event is one step: under one hold of the lock a shape decides on values what the step does and that is
/// committed; then the effects are spoken in their order. The host may answer any of them by changing the shape: what
/// the step has left to say is then dropped, because the shape is no longer where the step left it.
class CGestureShape : public CVideoAnalyseShape {
  public:
    CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) override;
    void HandleLButtonDownEvent(const PointerEvent& event, int hitLevel) override;
    Refused SetVideoAnalyseShapeData(const Configuration& configuration) override;
    bool GetVideoAnalyseShapeConfigData(char* buffer, int size) override;
    void ClearShape() override;
    bool RestartDrawing() override {
        Take(nullptr, [&] { return StartOver(); });
        return true;
    }

    /// All points, or none when one of them would leave the view.
    bool MoveShape(float dx, float dy) override;
    /// The points with one of them dragged to `current`.
    bool BuildDragPoints(int index, const PointF& current, Points& out) override;
    Claim GetClaim() const override;
    void OnMouseListened(MouseListenerKind kind, const PointerEvent& event) override;
    void GiveUpGesture(ViewID view) noexcept override;
    void OnDraw(PaintPass& pass) override;

  protected:
    // The steps of a gesture, called with the lock held. They change the figure and speak to no one.

    /// Whether the first press may be there.
    virtual bool MayStart(const PointerEvent& press) const { return AcceptsPoint(press.position, press.view); }
    virtual Outcome StartDrawing(const PointerEvent& press) = 0;
    /// A further press.
    virtual Outcome ContinueDrawing(const PointerEvent& /*press*/) { return {}; }
    virtual Outcome DrawTo(const PointerEvent& position) = 0;
    virtual Outcome EndDrawing(const PointerEvent& release) = 0;
    /// A move or release that a shape which waits to be drawn still listens to.
    virtual Outcome ResumeDrawing(const PointerEvent& /*position*/) { return {}; }
    virtual Outcome FinishWaiting(const PointerEvent& /*release*/) { return {}; }
    /// A press that grabs a vertex of the finished figure, or the whole by its inside, or nothing.
    virtual Outcome StartEditing(const PointerEvent& press, int hitLevel);
    virtual Outcome MoveTo(const PointerEvent& position) {
        FollowMouse(AimOf(position), position.view);
        return {};
    }
    virtual Outcome EndMove(const PointerEvent& /*release*/) { return Finish(); }
    /// Drags the grabbed point.
    virtual Outcome AdjustTo(const PointerEvent& position) {
        DragPoint(figure.grabbedIndex, AimOf(position), position.view);
        return {};
    }
    virtual Outcome EndAdjust(const PointerEvent& release) { return EndMove(release); }
    /// Where a drag of the finished figure goes.
    virtual PointF AimOf(const PointerEvent& position) const { return position.ClampedFrom(figure.anchorPoint); }

    // What the steps lead to.

    Outcome Begin(ShapeState gesture) const { return {gesture, effects::Begin}; }
    /// Selects the finished shape and shows its handles.
    Outcome Grab(ShapeState gesture);
    /// The same for a press that moves the whole figure.
    Outcome GrabWhole(const PointF& press) {
        figure.anchorPoint = press;
        return Grab(Moving);
    }

    Outcome Finish() const { return {Complete, effects::Finish}; }
    /// The figure goes, and the shape waits to be drawn anew.
    Outcome StartOver() {
        Forget();
        return {Waiting, effects::LetGo};
    }

    /// Moves the whole figure after the mouse and takes the mouse over as the new anchor; a refused step changes
    /// nothing.
    bool FollowMouse(const PointF& position, const ClientRect& view);
    /// Moves all points or none.
    virtual bool MovePoints(float dx, float dy, const ClientRect& view);
    /// Drags one point, as far as the figure allows that. False: nothing changed.
    virtual bool DragPoint(int /*index*/, const PointF& /*to*/, const ClientRect& /*view*/) { return false; }
    /// What a cleared shape forgets.
    virtual void Forget() { figure.points.clear(); }

    // A configuration, read and written with the lock held.

    virtual bool TakesStyle() const { return true; }
    /// Takes over a mode word, or the option's other meaning.
    virtual void ReadWord(const char* /*option*/) {}
    virtual std::string GeometryKey() const { return name; }
    /// Reads the figure and enters the state that it has.
    virtual Refused Load(Loading& loading) = 0;
    /// Null when there is nothing to write.
    virtual Json::Value WriteGeometry() const = 0;
    virtual CopyRule RuleOfCopying() const = 0;
    /// Whether what is written depends on the view's size.
    virtual bool WritesPlaces() const { return true; }

    // A paint.

    /// Whether a paint of the view shows the shape.
    virtual bool IsShownIn(ViewID view) const { return visible && view == GetViewId() && state != Deleted; }
    /// With the lock held, before the figure is copied. False: it needs the painted view's rectangle, which the pass has
    /// not asked for yet.
    virtual bool FitToPaint(const PaintPass& /*pass*/) { return true; }
    virtual void Draw(const ShapeLook& look, PaintPass& pass) = 0;

    // Presses, with the lock held.

    /// How strongly the finished figure claims a left press there; `Miss` without a word of it.
    virtual int LevelAt(const PointF& press) = 0;
    /// Whether the shape claims every left press, for the gesture that it is in or waits for.
    virtual bool IsBusy() const { return state != Deleted && state != Complete; }
    /// Where the finished figure may answer.
    virtual Claim CompleteClaim() const { return Claim::Around(figure.points, HitReach, true); }

    void Dispose() override;
    virtual void TellState(int previousState, int newState);

    /// Runs a step: decides, commits, speaks.
    template <class Step>
    void Take(const ContainerMouseEvent* cause, Step step) {
        Committed committed;
        {
            platform::LockGuard guard(lock);
            if (IsRetired()) {
                return;
            }
            committed.previous = state;
            committed.outcome = step();
            Commit(committed);
        }
        if (committed.outcome.ChangesLife()) { // the steps between claim the same presses: all of them
            MarkClaimStale();
        }
        Speak(committed, cause);
    }

    /// The one place where a shape changes its state; with the lock held.
    void Enter(ShapeState next);
    bool IsListening() const { return listening; }

    /// A right press while the shape is drawn finishes it.
    void FinishByRightButton(int hitLevel) {
        Take(nullptr, [&] { return hitLevel == Busy && state == Drawing ? Finish() : Outcome{}; });
    }
    /// A right press on a shape that allows it takes the shape to state 0, clears it and reports that.
    void DeleteByRightButton(int hitLevel);

    bool enableRBtnDelete = false;

  private:
    struct Committed {
        Outcome outcome;
        int previous = Deleted;
        unsigned life = 0;
    };

    void Commit(Committed& committed);
    void Speak(const Committed& committed, const ContainerMouseEvent* cause);
    void SpeakOne(Effect effect, const Committed& committed, const ContainerMouseEvent* cause);
    void GiveUp(const Committed& committed) noexcept;
    bool IsStill(const Committed& committed) const { return life == committed.life && !IsRetired(); }
    void TellSelection();
    void RequestCapture(bool take);
    void Listen();
    void StopListening();

    bool CopyFitted(PaintPass& pass);

    void TakeStyle(const char* option);
    void BeginConfiguration(const char* shapeName);
    Refused LoadText(const Configuration& configuration);

    std::atomic<bool> listening{false};
    /// Counts what happened to the shape's state and figure beyond the steps of a drag.
    std::atomic<unsigned> life{0};
};

} // namespace rulecanvas
