#include "ui/window.hpp"

#include <exception>
#include <stdexcept>

namespace rule_editor {

Window::~Window() {
    if (handle == nullptr) {
        return;
    }
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    DestroyWindow(handle);
}

Size Window::ClientSize() const {
    RECT area = {};
    GetClientRect(handle, &area);
    return {area.right, area.bottom};
}

void Window::Create(const wchar_t* className, const wchar_t* title, DWORD style, HWND parent) {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS;
    description.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(1));
    description.lpfnWndProc = &Window::Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = className;
    RegisterClassExW(&description);
    CreateWindowExW(0, className, title, style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, parent,
                    nullptr, description.hInstance, this);
    if (handle == nullptr) {
        throw std::runtime_error("no window can be made");
    }
}

LRESULT Window::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(handle, message, wParam, lParam);
}

LRESULT CALLBACK Window::Procedure(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const made = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        made->handle = target;
        SetWindowLongPtrW(target, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* const window = reinterpret_cast<Window*>(GetWindowLongPtrW(target, GWLP_USERDATA));
    if (window == nullptr) {
        return DefWindowProcW(target, message, wParam, lParam);
    }
    return window->GuardedMessage(message, wParam, lParam);
}

LRESULT Window::GuardedMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return OnMessage(message, wParam, lParam);
    } catch (const std::exception& error) {
        OnFailure(error.what());
        return 0;
    }
}

} // namespace rule_editor
