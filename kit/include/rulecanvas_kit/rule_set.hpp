/// The rules of one container, each with the shape that was made for it.
#ifndef RULECANVAS_KIT_RULE_SET_HPP
#define RULECANVAS_KIT_RULE_SET_HPP

#include <rulecanvas/host.hpp>
#include <rulecanvas_kit/figure.hpp>
#include <rulecanvas_kit/rule.hpp>

#include <functional>
#include <string>
#include <vector>

namespace rulecanvas::kit {

/// States as notifications number them.
enum class RuleState { Deleted = 0, Waiting = 1, BeingDrawn = 2, Complete = 3, BeingMoved = 4, PointDragged = 5 };

struct RuleEntry {
    Rule rule;
    ShapeID shape = 0;
    RuleState state = RuleState::Waiting;
    int number = 0;       ///< Counts the rules of a set from 1, anew when the set was empty.
    std::string reported; ///< The geometry that the library reports for the stored configuration.
};

/// A notification of the library, and whose it is.
struct RuleNews {
    const RuleEntry* entry; ///< Null for a shape that is not of this set. Valid during the call.
    bool stateChanged;      ///< Else the shape was selected.
    RuleState before;
    RuleState after;
    const char* text; ///< As the library wrote it.
};

/// Keeps for every shape what a rules file needs, so that any shape can be made again. Configurations stay the texts that
/// they were made from until the user changes the figure: the library would round them to whole pixels.
///
/// It takes the container's notifications. One thread: the one that feeds the events. The container must outlive it.
class RuleSet {
  public:
    explicit RuleSet(Container& container);
    ~RuleSet();
    RuleSet(const RuleSet&) = delete;
    RuleSet& operator=(const RuleSet&) = delete;

    /// `heard` is called from inside the call of the library that caused the notification.
    void OnNews(std::function<void(const RuleNews&)> heard) { news = std::move(heard); }

    static constexpr size_t None = static_cast<size_t>(-1);

    const std::vector<RuleEntry>& Entries() const { return entries; }
    size_t Find(const std::string& name) const;
    /// The rule that is still to be drawn, or being drawn.
    size_t Unfinished() const;
    /// The first selected one.
    size_t Selected() const;
    /// No figure is being drawn, moved or reshaped.
    bool Settled() const;
    /// All but the unfinished one, as a rules file keeps them.
    std::vector<Rule> Finished() const;

    /// Adds a rule at the end; one without a configuration waits to be drawn. False when the library refuses it: nothing
    /// changed then, and `problem` says why.
    bool Add(const Rule& rule, std::string& problem);
    /// Makes the shape of a rule anew from another rule; it keeps its place and its selection. False as above.
    bool Replace(size_t index, const Rule& rule, std::string& problem);
    void Remove(size_t index);
    /// Makes the set hold exactly these rules. Shapes of rules that are there already stay. All or nothing: `problem` names
    /// every refused rule.
    bool Restore(const std::vector<Rule>& rules, std::string& problem);

    /// Selects that rule alone; None: none.
    void Select(size_t index);
    void SetFlags(size_t index, bool enabled, bool visible, bool locked);

    /// To be called after events: takes over what the user did to the figures, and lets go of those that were deleted.
    void TakeEdits();
    /// To be called after a change of the view's size, before further events: figures were refitted, which is no edit.
    void Refitted();

    /// The points of a rule as it is shown now, in pixels.
    std::vector<PointF> Points(size_t index) const;
    /// What a press would take of a complete rule that takes presses.
    Grip GripOf(size_t index, PointF at) const;
    /// The rule that a press gets: the selected one, else the one drawn last of those that it would grip.
    size_t RuleAt(PointF at) const;
    /// Sends a press of a button to the rule at that place alone, and selects it.
    void Press(MouseCode code, PointF at);
    /// The library tells of a gesture when it is over. A host knows that one began by the capture that a press asks for, and
    /// that it is over by the release of the button.
    void BeginGesture(Grip grip);
    void SetBeingDrawn(bool begun);
    void EndGesture();

    /// Whether the rule is drawn with a line that begins at that point.
    bool HasLineFrom(size_t index, PointF at) const;

    void SetViewSize(std::function<Size()> given) { viewSize = std::move(given); }

  private:
    struct Strokes;

    ShapeID Make(RuleEntry& entry, std::string& problem);
    void ApplyLook(const RuleEntry& entry);
    void ApplyFlags(const RuleEntry& entry);
    void Relook(RuleEntry& entry, const Rule& rule);
    size_t FindSameShape(const Rule& rule, const std::vector<ShapeID>& kept) const;
    void Hear(const char* text);
    std::string Report(ShapeID shape) const;
    Strokes StrokesOf(size_t index) const;
    bool TakesPresses(const RuleEntry& entry) const;
    size_t IndexOf(ShapeID shape) const;

    Container& container;
    std::function<void(const RuleNews&)> news;
    std::function<Size()> viewSize;
    std::vector<RuleEntry> entries;
    RuleEntry* beingMade = nullptr; ///< It speaks before its identity is known.
    int counter = 0;
};

} // namespace rulecanvas::kit

#endif
