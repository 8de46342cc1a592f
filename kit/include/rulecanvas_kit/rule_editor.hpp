/// Editing rules with a pointer and a keyboard, so that no work is lost: the part of a host that is the same in every
/// windowing system. View feeds it on Windows.
#ifndef RULECANVAS_KIT_RULE_EDITOR_HPP
#define RULECANVAS_KIT_RULE_EDITOR_HPP

#include <rulecanvas/host.hpp>
#include <rulecanvas_kit/history.hpp>
#include <rulecanvas_kit/rule_set.hpp>

#include <functional>
#include <string>
#include <vector>

namespace rulecanvas::kit {

/// What the editor needs from the host. All are called on the thread of the calls below.
struct RuleEditorHost {
    std::function<Size()> viewSize;         ///< Of the one view, whose number is 0. Asked on the paint thread too.
    std::function<void(bool take)> capture; ///< Take or release the mouse.
    std::function<void()> redraw;
    std::function<void()> changed;               ///< Rules, selection, tool or history are not what they were.
    std::function<void(const std::string&)> say; ///< Why something was refused, for the user.
    std::function<void(const RuleNews&)> news;   ///< What the library reports; may be empty.
};

/// What a press would do where the pointer is.
enum class PointerUse { Nothing, Draw, Close, Move, DragPoint };

/// Owns the container of one view, its rules and their history. One thread; not from inside a callback of its own, but for
/// the constant functions.
class RuleEditor {
  public:
    explicit RuleEditor(RuleEditorHost host);
    ~RuleEditor();
    RuleEditor(const RuleEditor&) = delete;
    RuleEditor& operator=(const RuleEditor&) = delete;

    // ---- Events of the view, in pixels ----

    void LeftDown(PointF at);
    void LeftUp(PointF at);
    /// Closes a drawing by corners; else it is a press like another.
    void DoubleClick(PointF at);
    void Move(PointF at);
    /// True when the press did something to a figure: then it asks for no menu.
    bool RightDown(PointF at, bool alt);
    void RightUp(PointF at);
    /// Another window took the mouse: the gesture ends where the pointer was last.
    void CaptureLost();
    /// Gives up the move or the drag in progress, else the drawing, else the tool, else the selection.
    void Escape();
    /// The view has another size.
    void Resized();

    PointerUse UseOf(PointF at) const;
    void Paint(Surface& surface) const { container.Paint(0, surface); }

    // ---- Drawing ----

    /// Begins a rule of that look, in place of one that is still to be drawn. With `keep` another one follows each. False when
    /// the library refuses; `problem` says why.
    bool StartDrawing(const Rule& look, bool keep, std::string& problem);
    void StopDrawing();
    /// The look that is drawn now; null when nothing is.
    const Rule* Drawing() const;
    bool KeepsDrawing() const { return keepDrawing; }
    /// The corners clicked so far.
    const std::vector<PointF>& Corners() const { return corners; }
    /// Finishes a drawing by corners, when there are enough.
    void CloseDrawing();
    void TakeBackCorner();
    /// What the user may do next.
    std::string Help() const;

    // ---- Rules; an index is a place in Rules().Entries() ----

    const RuleSet& Rules() const { return rules; }
    Container& Library() { return container; }
    void Select(size_t index);
    /// The next rule in the list, or the one before.
    void SelectNext(bool backwards);
    /// The first free name of the kind "Variable polygon 4".
    std::string FreeName(const std::string& type) const;
    /// Adds a rule that has a configuration, at the end, and selects it. False when it is refused; `problem` says why.
    bool Add(const Rule& rule, std::string& problem);
    /// Gives a rule another look or name. False when it is refused; `problem` says why.
    bool Change(size_t index, const Rule& rule, std::string& problem);
    void SetFlags(size_t index, bool enabled, bool visible, bool locked);
    void Delete(size_t index);
    void Clear();
    bool Duplicate(size_t index);
    /// Moves a figure by pixels, as far as the view allows.
    void Nudge(size_t index, int dx, int dy);

    // ---- History and files ----

    bool CanUndo() const { return history.CanUndo(); }
    bool CanRedo() const { return history.CanRedo(); }
    void Undo();
    void Redo();
    bool HasUnsavedChanges() const { return history.HasUnsavedChanges(); }
    /// What a rules file should hold; tell when it was written.
    std::vector<Rule> RulesToSave() const { return rules.Finished(); }
    void MarkSaved();
    /// Replaces the rules, all or none. The step can be undone.
    bool Load(const std::vector<Rule>& loaded, std::string& problem);

  private:
    void Capture(bool take);
    void LetMouseGo();
    void ReleaseLeft(PointF at);
    bool BeingDrawn() const;
    std::string ProblemOf(const Rule& rule, size_t index) const;
    bool DrawsCorners() const;
    bool AlsoByClicks() const;
    bool NearFirstCorner(PointF at) const;
    size_t LeastCorners() const;
    void NoticeCorner(PointF at);
    void SayWhyNotMoved(PointF at);
    std::string CornerRefusal(PointF at) const;
    void RestartDrawing();
    void Settle();
    void Show(const History::State& state);
    void Say(const std::string& text) const;
    void Changed() const;

    RuleEditorHost host;
    HostObject hostObject;
    Container container;
    RuleSet rules;
    History history;
    Rule drawn; ///< The look that was asked for; its name may be empty.
    bool drawing = false;
    bool keepDrawing = false;
    bool captured = false;
    bool losingCapture = false;
    bool quiet = false; ///< While the editor itself plays events.
    std::vector<PointF> corners;
    PointF pressed = {};
    PointF pointer = {};
};

} // namespace rulecanvas::kit

#endif
