#pragma once

#include "picture/frame.hpp"

#include <windows.h>

#include <string>

namespace rule_editor {

/* A window of this program's own kind: routes messages to a member function. It ends its window with itself. */
class Window {
  public:
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND Handle() const { return m_handle; }
    Size clientSize() const;
    void redraw() const { InvalidateRect(m_handle, nullptr, FALSE); }

  protected:
    Window() = default;

    /* Makes the window. Windows of this kind paint all of their client area and are never erased. */
    void create(const wchar_t* className, const wchar_t* title, DWORD style, HWND parent);

    /* Messages may arrive from create() on. */
    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /* An exception left onMessage, which the system's own frames must not see. */
    virtual void onFailure(const std::string& problem) = 0;

  private:
    static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT guardedMessage(UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_handle = nullptr;
};

} // namespace rule_editor
