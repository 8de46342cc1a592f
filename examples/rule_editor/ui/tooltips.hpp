#pragma once

#include <windows.h>

namespace rule_editor {

/// Short explanations that appear when the pointer rests on a control.
class Tooltips {
  public:
    explicit Tooltips(HWND parent);
    void Add(HWND control, const wchar_t* text) const;

  private:
    HWND window;
};

} // namespace rule_editor
