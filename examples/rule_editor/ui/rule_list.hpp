#pragma once

#include "ui/theme.hpp"

#include <rulecanvas_kit/rule_set.hpp>

#include <functional>
#include <string>
#include <vector>

namespace rule_editor {

/// The rules, one row each, with boxes: in force, shown, locked.
class RuleList {
  public:
    enum Box { InForce, Shown, Locked, BoxCount };
    struct Events {
        std::function<void(size_t rule)> chosen;
        std::function<void(size_t rule, Box box)> boxPressed;
    };

    RuleList(HWND parent, const Theme& look, WORD id, Events given);

    HWND Handle() const { return list; }
    void Show(const rulecanvas::kit::RuleSet& rules);
    void OnCommand(WORD event) const;
    void Draw(const DRAWITEMSTRUCT& item) const;
    /// The middle of a box, in the list's client area.
    POINT PlaceOf(size_t rule, Box box) const;

  private:
    struct Row {
        std::wstring name;
        std::string type;
        std::wstring state;
        bool boxes[BoxCount];
        bool selected;

        bool operator==(const Row& other) const;
    };

    RECT BoxArea(const RECT& row, int box) const;

    const Theme& theme;
    Events events;
    HWND list;
    POINT pressed = {-1, -1};
    std::vector<Row> rows;
};

} // namespace rule_editor
