#pragma once

#include "ui/theme.hpp"

#include <deque>
#include <string>

namespace rule_editor {

/// What changed, a line each, the newest at the bottom. It stays where the user scrolled to.
class LogList {
  public:
    LogList(HWND parent, const Theme& look, WORD id);

    HWND Handle() const { return list; }
    void Add(const std::string& line);
    void Draw(const DRAWITEMSTRUCT& item) const;
    size_t LineCount() const { return lines.size(); }

    static constexpr int LineHeight = 17;

  private:
    const Theme& theme;
    HWND list;
    std::deque<std::wstring> lines;
};

} // namespace rule_editor
