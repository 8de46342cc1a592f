#pragma once

#include "platform/platform.h"
#include "shape/delegate.h"
#include "shape/shape_container.h"
#include "shape/shape_look.h"
#include "shape/types.h"

#include <atomic>
#include <memory>
#include <string>

namespace rulecanvas {

/// What every figure on a view shares: its points, names, look and flags, the operations through which the container
/// drives it, and the hooks that a concrete shape binds in its constructor.
///
/// A shape is made by the factory, wired and configured by its container, and ends by Retire: from then on it stands in
/// no list, calls no one and draws nothing, although a call that is still running may keep the object alive a little
/// longer.
///
/// Points, texts, colours and sizes are guarded by `lock`, because a paint may run beside the mouse. Flags are atomic.
/// No call into the host is made while the lock is held.
class CVideoAnalyseShape : public std::enable_shared_from_this<CVideoAnalyseShape> {
  public:
    CVideoAnalyseShape();
    virtual ~CVideoAnalyseShape() = default;
    CVideoAnalyseShape(const CVideoAnalyseShape&) = delete;
    CVideoAnalyseShape& operator=(const CVideoAnalyseShape&) = delete;

    /// The hit tests return the shape that answers, or null, and write the level only on a hit.
    virtual CVideoAnalyseShape* HitTestLButtonDown(const ContainerMouseEvent& event, int& hitLevel) = 0;
    virtual CVideoAnalyseShape* HitTestRButtonDown(const ContainerMouseEvent& event, int& hitLevel);
    virtual CVideoAnalyseShape* HitTestAltRButtonEvent(const ContainerMouseEvent& event, int& hitLevel);
    virtual void HandleLButtonDownEvent(const ContainerMouseEvent& event, int hitLevel);
    virtual void HandleRButtonEvent(const ContainerMouseEvent& event, int hitLevel);
    virtual void OnReservedEvent(uint32_t first, uint32_t second);
    /// Offered to every shape on moves and keys.
    virtual void HandleContainerEvent(const ContainerMouseEvent& event, int hitLevel);
    virtual void GetShapePoints(Points& out) const;
    /// Takes a new configuration. Each text may be null. False: refused.
    virtual bool SetVideoAnalyseShapeData(const char* shapeName, const char* shapeData, const char* styleOrMode) = 0;
    /// Whether a text was copied into the buffer.
    virtual bool GetVideoAnalyseShapeConfigData(char* buffer, int size);
    virtual void ClearShape() = 0;
    virtual uint32_t AddSubShape(uint32_t first, uint32_t second, uint32_t third);
    virtual bool SelectShape(bool select, int mode);
    virtual void SetSelectedState(bool select);
    virtual void RemoveSubShape(ShapeID id);
    virtual CVideoAnalyseShape* FindSubShape(ShapeID id);
    virtual int SetShapeDirection(ShapeID id, int newDirection);
    virtual bool RestartDrawing();
    virtual void ShowShape(bool show);
    virtual bool MoveShape(float dx, float dy);
    virtual bool BuildDragPoints(int index, const PointF& current, Points& out);
    virtual bool GetPressPoint(PointF& out) const;
    virtual void SetShapePoints(Points newPoints);
    virtual void SetSubShapeShowName(ShapeID id, const char* text);
    /// Rescales the points to the client rectangle that the host reports for view 0, whatever view the shape is in: the
    /// views of a container show one picture in one size, and view 0 stands for all of them.
    virtual void FitToClientRect();
    virtual int GetShapeDirection() const;

    ShapeID GetShapeId() const { return shapeId; }
    int GetShapeType() const { return shapeType; }
    int GetState() const { return state; }
    IShapeContainer* GetContainer() const { return container; }
    void SetContainer(IShapeContainer* owner);
    const std::string& GetName() const { return name; }
    const std::string& GetEventName() const { return eventName; }
    void SetEventName(const char* text);
    void SetShowNameText(const char* text);
    bool IsSelected() const { return selected; }
    bool IsEnabled() const { return enabled; }
    /// Disabling hides the handles too; enabling selects without showing them.
    bool EnableShape(bool enable);
    void SetAdjustBoxShow(bool show) { adjustBoxShown = show; }
    bool SetShapeColor(int red, int green, int blue, bool selectedColour);
    /// A minimum of 3 or less counts as 3.
    void SetMaxPtNum(int maximum, int minimum);
    ViewID GetViewId() const { return viewId; }
    /// Puts the shape into a view and takes over the view's size.
    void SetViewId(ViewID view);
    int GetGrabbedIndex() const { return grabbedIndex; }

    /// True for the first caller only: whoever gets it ends the shape.
    bool ClaimRetirement() { return !retirementClaimed.exchange(true); }
    /// Undoes what the shape did with its container, then cuts the connection. From now on no paint begins to draw it.
    void Retire();
    /// Frees the figure, which a paint that had begun may have been drawing.
    void FreeFigure() { ClearPoints(); }
    /// Whether a paint on another thread is given time to finish between the two.
    virtual bool AwaitsPaint() const = 0;
    bool IsRetired() const { return container == nullptr; }

    Delegate<void(int, int)> SelectNotifyHook;
    Delegate<bool(float, float)> MoveHook;
    Delegate<bool(int, const PointF&, Points&)> DragPointsHook;
    /// Whether a point may be used in a view.
    Delegate<bool(ViewID, const PointF&)> AdjustPointCoordinateHook;
    Delegate<void(int, int)> StateNotifyHook;
    DrawListener DrawHook;
    /// Whether a list of points is acceptable; the flag marks a list that is complete.
    Delegate<bool(const Points&, bool)> ValidationHook;
    Delegate<bool(const Points&)> GeometryCheckHook;
    /// Whether a point may follow the last one; the flag marks the last point allowed.
    Delegate<bool(const PointF&, const PointF&, bool)> PointAcceptanceHook;
    Delegate<bool(int, const PointF&)> VertexMoveHook;
    Delegate<void(const PointF&)> EdgeInsertHook;
    Delegate<void(const PointF&)> CursorHook;
    Delegate<void(const ContainerMouseEvent&)> CreationFinishedHook;

  protected:
    /// What a shape undoes before it is freed.
    virtual void Dispose() = 0;

    bool ParseStyleConfig(const char* styleText);
    void ClearPoints();
    Points CopyPoints() const;
    /// The points and the view size they are fitted to, of one moment.
    FittedPoints CopyFitted();
    void AppendPointsTo(Points& out) const;
    size_t PointCount() const;
    void ReplacePoints(Points newPoints);
    void AppendPoint(const PointF& point);
    /// Runs `edit` on a copy of the points, without the lock, and takes the copy over when it returns true; anew, a few
    /// times, when a refit changed the points meanwhile. False, with nothing changed: the edit refused, the host took the
    /// shape into another state, or the refits did not stop.
    template <class Edit>
    bool EditPoints(Edit edit);
    /// A consistent copy of all that drawing needs.
    ShapeLook CopyLook() const;
    void SetLastPoint(const PointF& point);
    void SetAnchorPoint(const PointF& point);

    ClientRect ViewRect() const;
    /// The size to which the points are fitted, asked from the container while it is unknown.
    ViewSize KnownViewSize();
    ViewSize FittedSize() const;
    /// Whether the point may be used in the shape's view; no one to ask refuses.
    bool AcceptsPoint(const PointF& point) const;
    bool RequestCapture(bool take);
    void RegisterDraw();
    void UnregisterDraw();

    int shapeType = 0;
    std::atomic<int> state{Deleted};
    std::string name;
    std::atomic<bool> selected{false};
    std::atomic<bool> adjustBoxShown{false};
    std::atomic<bool> visible{true};
    int lineThickness = 2;
    int unSelLineThickness = 2;
    int grabbedIndex = -1;
    PointF lastPoint{};
    PointF anchorPoint{};
    std::atomic<int> hostDirection{-1};
    std::atomic<int> direction{-1};
    std::atomic<int> maxPtNum{0};
    std::atomic<int> minPtNum{0};
    bool eventNameSet = false;
    bool enableRBtnDelete = false;
    bool canAdjust = true;
    bool canMove = true;
    int radius = 5;
    bool solid = false;
    ColorF selColor = OpaqueColour(255, 255, 0);
    ColorF unSelColor = OpaqueColour(0, 0, 255);
    TextStyle textStyle{};
    int penStyle = 0;
    bool mosaicEnable = false;
    int mosaicSize = 8;
    mutable platform::Mutex lock;

  private:
    void AskViewSize();
    bool IsInView(ViewID view, const PointF& point);

    const ShapeID shapeId;
    std::atomic<IShapeContainer*> container{nullptr};
    std::atomic<bool> retirementClaimed{false};
    Points points;
    unsigned pointsVersion = 0;
    std::string eventName;
    std::string showNameText;
    std::atomic<bool> enabled{true};
    ViewID viewId = 0;
    int clientWidth = 0;
    int clientHeight = 0;
    ClientRect clientRect{};
    bool isFill = false;
    ColorF fillColor = OpaqueColour(0, 0, 0);
    bool drawRegistered = false;

    friend class StyleReader;
};

template <class Edit>
bool CVideoAnalyseShape::EditPoints(Edit edit) {
    constexpr int patience = 3; // a resized window refits the points now and then, not for ever
    const int stateBefore = state;
    for (int attempt = 0; attempt < patience; ++attempt) {
        Points edited;
        unsigned version = 0;
        {
            platform::LockGuard guard(lock);
            edited = points;
            version = pointsVersion;
        }
        if (!edit(edited) || stateBefore != state) {
            return false;
        }
        platform::LockGuard guard(lock);
        if (version == pointsVersion) {
            points = std::move(edited);
            ++pointsVersion;
            return true;
        }
    }
    return false;
}

} // namespace rulecanvas
