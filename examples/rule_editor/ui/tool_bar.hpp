#pragma once

#include "ui/commands.hpp"
#include "ui/layout.hpp"
#include "ui/theme.hpp"

#include <functional>
#include <string>
#include <vector>

namespace rule_editor {

/// The buttons at the top, with tooltips.
class ToolBar {
  public:
    ToolBar(HWND parent, const Theme& look);

    int Width() const;
    int Height() const;
    void Place(Layout& layout, int left, int top) const;
    void EnableButtons(const std::function<bool(Command)>& isPossible) const;
    void SetCaption(Command command, const wchar_t* caption) const;
    /// The command of a button's message, or None. Two quick clicks are two clicks.
    Command CommandOf(WORD control, WORD event) const;
    void Draw(const DRAWITEMSTRUCT& item) const;
    HWND ButtonOf(Command command) const;

  private:
    const Theme& theme;
    std::vector<HWND> buttons;
};

} // namespace rule_editor
