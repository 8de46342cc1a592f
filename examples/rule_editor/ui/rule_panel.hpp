#pragma once

#include "ui/layout.hpp"
#include "ui/theme.hpp"

#include <rulecanvas_kit/rule.hpp>

#include <array>
#include <functional>
#include <string>

namespace rule_editor {

/// The texts and the direction of a rule: the selected one, or the next one to be drawn.
class RulePanel {
  public:
    /// The user changed something. False when it was refused.
    using Applied = std::function<bool(const rulecanvas::kit::Rule& rule)>;

    enum Field { Name, Label, Caption, Option, FieldCount };

    RulePanel(HWND parent, const Theme& look, WORD firstId, Applied whenApplied);

    /// `heading` tells whose texts they are. What the user is typing stays while the rule stays the same.
    void Show(const std::string& heading, const rulecanvas::kit::Rule& rule);
    const rulecanvas::kit::Rule& Shown() const { return shown; }
    /// Applies what was typed. False when it is refused: then it stays to be put right, or without `insist` the old texts
    /// come back.
    bool Apply(bool insist);
    void Revert();

    int Height() const;
    void Place(Layout& layout, const RECT& area);
    void PaintHeading(HDC context) const;
    /// False when it concerns another control.
    bool OnCommand(WORD control, WORD event);
    HWND EditOf(Field field) const { return edits[field]; }
    HWND Directions() const { return directions; }
    bool IsEdit(HWND control) const;

  private:
    void ShowDirections();
    rulecanvas::kit::Rule Typed() const;

    const Theme& theme;
    Applied applied;
    WORD firstControl;
    std::array<HWND, FieldCount + 1> labels = {};
    std::array<HWND, FieldCount> edits = {};
    HWND directions;
    RECT heading = {};
    std::wstring title;
    rulecanvas::kit::Rule shown;
    bool filling = false;
    bool typed = false;
};

} // namespace rule_editor
