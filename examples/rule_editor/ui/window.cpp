#include "ui/window.hpp"

#include <exception>
#include <stdexcept>

namespace rule_editor {

Window::~Window() {
    if (m_handle == nullptr) {
        return;
    }
    SetWindowLongPtrW(m_handle, GWLP_USERDATA, 0);
    DestroyWindow(m_handle);
}

Size Window::clientSize() const {
    RECT area = {};
    GetClientRect(m_handle, &area);
    return {area.right, area.bottom};
}

void Window::create(const wchar_t* className, const wchar_t* title, DWORD style, HWND parent) {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    description.lpfnWndProc = &Window::procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = className;
    RegisterClassExW(&description);
    CreateWindowExW(0, className, title, style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent,
                    nullptr, description.hInstance, this);
    if (m_handle == nullptr) {
        throw std::runtime_error("no window can be made");
    }
}

LRESULT Window::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(m_handle, message, wParam, lParam);
}

LRESULT CALLBACK Window::procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const window = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        window->m_handle = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
    }
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (window == nullptr) {
        return DefWindowProcW(handle, message, wParam, lParam);
    }
    return window->guardedMessage(message, wParam, lParam);
}

LRESULT Window::guardedMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return onMessage(message, wParam, lParam);
    } catch (const std::exception& error) {
        onFailure(error.what());
        return 0;
    }
}

} // namespace rule_editor
