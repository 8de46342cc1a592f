#pragma once

#include <rulecanvas_kit/rule.hpp>

#include <windows.h>

#include <string>

namespace rule_editor {

using rulecanvas::kit::Size;

/// A window of this program's own kind: routes messages to a member function. It ends its window with itself.
class Window {
  public:
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND Handle() const { return handle; }
    Size ClientSize() const;
    void Redraw() const { InvalidateRect(handle, nullptr, FALSE); }

  protected:
    Window() = default;

    /// Makes the window. Windows of this kind paint all of their client area and are never erased.
    void Create(const wchar_t* className, const wchar_t* title, DWORD style, HWND parent);

    /// Messages may arrive from Create() on.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// An exception left OnMessage, which the system's own frames must not see.
    virtual void OnFailure(const std::string& problem) = 0;

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT GuardedMessage(UINT message, WPARAM wParam, LPARAM lParam);

    HWND handle = nullptr;
};

} // namespace rule_editor
