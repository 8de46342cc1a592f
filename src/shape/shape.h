#pragma once

#include "platform/platform.h"
#include "shape/configuration.h"
#include "shape/owner_hooks.h"
#include "shape/shape_container.h"
#include "shape/shape_look.h"

#include <atomic>

namespace rulecanvas {

class PaintPass;
struct Claim;

/// A place in a list of listeners; 0 for none.
using ListenerTicket = std::atomic<uint64_t>;

/// What every figure on a view shares: its geometry, names, look and flags, and the operations through which the
/// container drives it.
///
/// A shape is made by the factory, wired and configured by its container, and ends by Retire: from then on it stands in
/// no list, calls no one and draws nothing, although a call that is still running may keep the object alive a little
/// longer.
///
/// `lock` guards the figure, the style, the limits and the texts; a paint may run beside the mouse. Flags are atomic,
/// and are changed together with what `lock` guards. The lock is never held while the host is called.
class CVideoAnalyseShape : public std::enable_shared_from_this<CVideoAnalyseShape> {
  public:
    CVideoAnalyseShape();
    virtual ~CVideoAnalyseShape() = default;
    CVideoAnalyseShape(const CVideoAnalyseShape&) = delete;
    CVideoAnalyseShape& operator=(const CVideoAnalyseShape&) = delete;

    /// The hit tests return the shape that answers, or null, and write the level only on a hit.
    virtual CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) = 0;
    virtual CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& /*event*/, int& /*hitLevel*/) {
        return nullptr;
    }
    virtual CVideoAnalyseShape* HitTestAltRButtonEvent(const ContainerMouseEvent& /*event*/, int& /*hitLevel*/) {
        return nullptr;
    }
    virtual void HandleLButtonDownEvent(const PointerEvent& /*event*/, int /*hitLevel*/) {}
    virtual void HandleRButtonEvent(const ContainerMouseEvent& /*event*/, int /*hitLevel*/) {}
    virtual void OnReservedEvent(uint32_t /*first*/, uint32_t /*second*/) {}
    /// Moves and keys, offered to composite shapes.
    virtual void HandleContainerEvent(const ContainerMouseEvent& /*event*/, int /*hitLevel*/) {}
    virtual void GetShapePoints(Points& out) const;
    /// Takes a new configuration; the reason when it is refused.
    virtual Refused SetVideoAnalyseShapeData(const Configuration& configuration) = 0;
    /// Whether a text was copied into the buffer.
    virtual bool GetVideoAnalyseShapeConfigData(char* buffer, int size) = 0;
    virtual void ClearShape() = 0;
    virtual uint32_t AddSubShape(uint32_t /*first*/, uint32_t /*second*/, uint32_t /*third*/) { return 0; }
    virtual bool SelectShape(bool select, int /*mode*/) {
        SetSelectedState(select);
        return true;
    }
    virtual void SetSelectedState(bool select);
    virtual void RemoveSubShape(ShapeID /*id*/) {}
    virtual CVideoAnalyseShape* FindSubShape(ShapeID /*id*/) { return nullptr; }
    virtual int SetShapeDirection(ShapeID id, int newDirection);
    virtual bool RestartDrawing() { return true; }
    virtual void ShowShape(bool show) { visible = show; }
    virtual bool MoveShape(float /*dx*/, float /*dy*/) { return false; }
    virtual bool BuildDragPoints(int /*index*/, const PointF& /*current*/, Points& /*out*/) { return false; }
    virtual bool GetPressPoint(PointF& out) const;
    virtual void SetShapePoints(Points newPoints);
    virtual void SetSubShapeShowName(ShapeID id, const char* text);
    /// Rescales the points to the client rectangle that the host reports for view 0, whatever view the shape is in: the
    /// views of a container show one picture in one size, and view 0 stands for all of them.
    virtual void FitToClientRect(const ClientRect& viewZero);
    virtual int GetShapeDirection() const;

    /// Whether the shape is made of others: only such a shape is asked for parts and offered moves and keys. None of
    /// this version is.
    virtual bool IsComposite() const { return false; }
    /// Whether a paint on another thread is given time to finish before the figure is freed.
    virtual bool AwaitsPaint() const { return true; }
    /// What the shape would answer to a press, and where.
    virtual Claim GetClaim() const = 0;
    /// An event of the mouse that the shape listens to.
    virtual void OnMouseListened(MouseListenerKind kind, const PointerEvent& event) = 0;
    /// Ends a gesture in the view, whose release the shape will not hear of.
    virtual void GiveUpGesture(ViewID view) noexcept = 0;
    /// The shape's turn in a paint of one view.
    virtual void OnDraw(PaintPass& pass) = 0;

    ShapeID GetShapeId() const { return shapeId; }
    int GetShapeType() const { return shapeType; }
    int GetState() const { return state; }
    IShapeContainer* GetContainer() const { return container; }
    void SetContainer(IShapeContainer* owner) { container = owner; }
    const std::string& GetName() const { return name; }
    const std::string& GetEventName() const { return eventName; }
    void SetEventName(const char* text);
    void SetShowNameText(const char* text);
    bool IsSelected() const { return selected; }
    bool IsEnabled() const { return enabled; }
    /// Disabling hides the handles too; enabling selects without showing them.
    void EnableShape(bool enable);
    void SetAdjustBoxShow(bool show) { adjustBoxShown = show; }
    void SetShapeColor(int red, int green, int blue, bool selectedColour);
    /// A minimum of 3 or less counts as 3.
    void SetMaxPtNum(int maximum, int minimum);
    ViewID GetViewId() const { return viewId; }
    /// Puts the shape into a view and takes over the view's size.
    void SetViewId(ViewID view, const ClientRect& clientRect);

    /// The hooks, for an owner to set before the shape is used.
    OwnerHooks& Hooks();

    /// True for the first caller only: whoever gets it ends the shape.
    bool ClaimRetirement() { return !retirementClaimed.exchange(true); }
    /// For a claim that could not be carried out.
    void DropRetirement() { retirementClaimed = false; }
    /// Undoes what the shape did with its container, then cuts the connection. From now on no paint begins to draw it.
    void Retire() noexcept;
    /// Frees the figure, which a paint that had begun may have been drawing.
    void FreeFigure() noexcept;
    bool IsRetired() const { return container == nullptr; }

  protected:
    /// What a shape undoes before it is freed.
    virtual void Dispose() = 0;
    /// Whether an owner may set these points; asked with the lock held.
    virtual bool TakesPoints(const Points& /*points*/) const { return false; }

    /// Asks the host.
    ClientRect ViewRect() const;
    /// Takes over the view's size, while that is unknown; asks the host.
    void LearnViewSize();
    /// The same from a rectangle that was asked for; with the lock held.
    void LearnViewSize(const ClientRect& view);
    void CopyLook(ShapeLook& look) const;
    /// `change` gets a copy of the style, which then takes its place; with the lock held.
    template <class Change>
    void ChangeStyle(Change change) {
        ShapeStyle changed = *style;
        change(changed);
        style = Shared(changed);
    }
    /// Whether a point may be used in the shape's view, whose client rectangle is given.
    bool AcceptsPoint(const PointF& point, const ClientRect& view) const;
    /// The answer of an owner that judges the figure, if there is one; `complete` marks its final form.
    bool PassesValidation(const Points& path, bool complete) const;
    const OwnerHooks* OwnersHooks() const { return hooks.get(); }
    void MarkClaimStale();
    void RegisterDraw();

    // What a paint looks at stands together, first: with many figures, fetching it is most of the time.

  public:
    /// The shape's places in its container's lists of listeners, which set them.
    ListenerTicket drawTicket{0};

  private:
    std::atomic<IShapeContainer*> container{nullptr};
    ViewID viewId = 0;

  protected:
    std::atomic<int> state{Deleted};
    std::atomic<bool> selected{false};
    std::atomic<bool> adjustBoxShown{false};
    std::atomic<bool> visible{true};
    mutable platform::ContainerMutex lock;
    Figure figure;
    StylePtr style;

  private:
    /// Null while empty.
    std::unique_ptr<const std::string> showNameText;

  public:
    ListenerTicket buttonUpTicket{0};
    ListenerTicket rightButtonUpTicket{0};
    ListenerTicket mouseMovedTicket{0};
    /// The container knows already that the shape's claim is not what it was.
    std::atomic<bool> claimIsStale{false};

  protected:
    int maxPtNum = 0;
    int minPtNum = 0;
    int shapeType = 0;
    bool eventNameSet = false;
    /// Written while the shape is configured, before anyone else knows it.
    std::string name;

  private:
    std::atomic<bool> enabled{true};
    std::atomic<bool> retirementClaimed{false};
    const ShapeID shapeId;
    std::string eventName;
    std::unique_ptr<OwnerHooks> hooks;
};

} // namespace rulecanvas
