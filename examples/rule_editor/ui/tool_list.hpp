#pragma once

#include "ui/theme.hpp"

#include <functional>
#include <string>

namespace rule_editor {

/// The tools, one row each: the pointer first, then a row for each type of figure.
class ToolList {
  public:
    /// An empty type is the pointer. A tool that is chosen by a double click is kept for more than one figure.
    using Chosen = std::function<void(const std::string& type, bool keep)>;

    ToolList(HWND parent, const Theme& look, WORD id, Chosen whenChosen);

    HWND Handle() const { return list; }
    int WantedHeight() const;
    /// Marks a tool without choosing it.
    void Mark(const std::string& type, bool kept);
    void OnCommand(WORD event) const;
    void Draw(const DRAWITEMSTRUCT& item) const;

  private:
    const Theme& theme;
    Chosen chosen;
    HWND list;
    bool keeping = false;
};

constexpr int RowHeight = 22;

} // namespace rule_editor
