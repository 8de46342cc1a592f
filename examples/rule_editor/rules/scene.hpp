#pragma once

#include <rulecanvas/host.hpp>

#include "rules/notification.hpp"
#include "rules/rule.hpp"

#include <functional>
#include <string>
#include <vector>

namespace rule_editor {

/* What the scene needs from the window that shows it. */
struct SceneHost {
    std::function<void()> redraw;
    std::function<void(bool take)> captureMouse;
    std::function<rulecanvas::ClientRect()> clientRect;
    std::function<void(const std::string& line)> log;
};

/* A rule and the shape that the library made for it. */
struct SceneEntry {
    Rule rule;
    rulecanvas::ShapeID shape = 0;
    int state = STATE_WAITING;
    int number = 0; /* Counts the rules of a scene from 1; never used twice. */
};

/* The rules on one video picture: keeps the library's container and, for each shape in it, what a rules file will need.
 * Everything runs on the thread of the window. At most one rule is unfinished, that is, still to be drawn. */
class Scene {
  public:
    explicit Scene(SceneHost host);

    /* Adds a rule. One without configuration is drawn by the user with the next events and replaces an unfinished one.
     * A rule without a name gets one. False when the library refuses it. */
    bool add(Rule rule);
    void remove(size_t index);
    void clear();
    const std::vector<SceneEntry>& entries() const { return m_entries; }

    /* Index of the rule with that name, of the unfinished rule, of the rule last added; entries().size() without one.
     */
    size_t find(const std::string& name) const;
    size_t unfinished() const;
    size_t last() const { return m_entries.empty() ? 0 : m_entries.size() - 1; }
    void abandonUnfinished();

    /* Makes it the only selected rule; any other index deselects all. */
    void select(size_t index);
    /* For each rule whether it is selected. */
    std::vector<bool> selection() const;
    void show(size_t index, bool visible);
    void SetPointLimits(size_t index, int32_t maximum, int32_t minimum);
    void SetDirection(size_t index, int32_t direction);
    void SetColour(size_t index, rulecanvas::Outline outline, Colour colour);
    std::string Configuration(size_t index) const;

    void save(const std::wstring& path) const;
    /* Replaces the rules by those of the file, none of them selected. */
    void load(const std::wstring& path);

    void SendMouse(rulecanvas::MouseCode code, float x, float y);
    void SendKey(uint16_t virtualKey);
    /* Whether the pointer at (x, y) is over a figure that it could grab, as far as the library tells. */
    bool wouldGrab(float x, float y);
    void Paint(rulecanvas::Surface& surface) const { m_container.Paint(VIEW, surface); }
    /* Size of the video in pixels. */
    void SetVideoSize(int width, int height) { m_container.SetVideoSize(width, height); }
    void SetTip(const std::string& text) { m_container.SetTip(VIEW, text.c_str()); }

    /* Shapes refit themselves to the rectangle of view 0, so the one view of this program has that number. */
    static constexpr rulecanvas::ViewID VIEW = 0;

  private:
    void onNotification(const char* text);
    void OnCapture(bool take);
    int stateAsGiven(rulecanvas::ShapeID shape) const;
    void noticeSilentCompletion();
    const SceneEntry* entryOf(rulecanvas::ShapeID shape) const;
    void removeDeleted();
    void applyLook(const SceneEntry& entry);

    SceneHost m_host;
    bool m_hinted = false;
    rulecanvas::HostObject m_hostObject;
    rulecanvas::Container m_container;
    std::vector<SceneEntry> m_entries;
    SceneEntry* m_beingAdded = nullptr; /* It speaks before its identity is known. */
    int m_counter = 0;
};

} // namespace rule_editor
