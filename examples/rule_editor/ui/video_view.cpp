#include "ui/video_view.hpp"

#include "picture/picture_surface.hpp"

#include <windowsx.h>

#include <algorithm>

namespace rule_editor {

using rulecanvas::MouseCode;

namespace {

MouseCode codeOf(UINT message, bool alt) {
    switch (message) {
    case WM_LBUTTONDOWN:
        return MouseCode::LeftDown;
    case WM_LBUTTONUP:
        return MouseCode::LeftUp;
    case WM_RBUTTONDOWN:
        return alt ? MouseCode::AltRightDown : MouseCode::RightDown;
    case WM_RBUTTONUP:
        return MouseCode::RightUp;
    default:
        return MouseCode::Moved;
    }
}

} // namespace

VideoView::VideoView(HWND parent, Scene& scene, Events events) : m_scene(scene), m_events(std::move(events)) {
    create(L"RuleEditorVideo", L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, parent);
}

void VideoView::setVideo(VideoSource& video) {
    m_video = &video;
    showFrame(0);
}

void VideoView::showFrame(int index) {
    m_frameIndex = index % m_video->frameCount();
    m_background = {};
    redraw();
}

rulecanvas::ClientRect VideoView::clientRect() const {
    const Size size = clientSize();
    return {0, 0, size.width, size.height};
}

void VideoView::captureMouse(bool take) {
    m_capturing = take;
    if (take) {
        SetCapture(Handle());
    } else if (GetCapture() == Handle()) {
        ReleaseCapture();
    }
}

Frame VideoView::picture() {
    render();
    return m_buffer.toFrame();
}

LRESULT VideoView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_SIZE:
        m_background = {};
        redraw();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MOUSEMOVE:
        if (onMouse(message, wParam, lParam)) {
            return 0;
        }
        break;
    case WM_KEYDOWN:
        m_scene.SendKey(static_cast<uint16_t>(wParam));
        if (wParam == VK_ESCAPE) {
            m_scene.abandonUnfinished();
        }
        m_events.sceneMayHaveChanged();
        return 0;
    case WM_SYSKEYUP:
        if (wParam == VK_MENU) {
            return 0;
        } /* Alt belongs to a gesture here; let alone it would open the window's menu. */
        break;
    case WM_CAPTURECHANGED:
        onCaptureLost();
        return 0;
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && chooseCursor()) {
            return TRUE;
        }
        break;
    default:
        break;
    }
    return Window::onMessage(message, wParam, lParam);
}

/* The mouse is let go with the button, whatever the library says: some shapes keep it, and the user must be able to
 * reach the rest of the window. */
bool VideoView::onMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool scripted = (wParam & SCRIPTED) != 0;
    if (m_scriptOnly && !scripted) {
        return false;
    }
    const bool alt = scripted ? (wParam & SCRIPTED_ALT) != 0 : GetKeyState(VK_MENU) < 0;
    if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN) {
        SetFocus(Handle());
    }
    send(codeOf(message, alt), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    if (message == WM_LBUTTONUP || message == WM_RBUTTONUP) {
        captureMouse(false);
    }
    if (scripted) {
        UpdateWindow(Handle());
    } /* A person's events come slowly enough for a paint after each. */
    return true;
}

void VideoView::send(MouseCode code, POINT at) {
    m_pointer = at;
    m_scene.SendMouse(code, static_cast<float>(at.x), static_cast<float>(at.y));
    redraw();
    m_events.sceneMayHaveChanged();
}

/* Another window took the mouse in the middle of a gesture, and its end will not be seen here. */
void VideoView::onCaptureLost() {
    if (!m_capturing) {
        return;
    }
    m_capturing = false;
    send(MouseCode::LeftUp, m_pointer);
}

bool VideoView::chooseCursor() {
    if (m_scriptOnly) {
        return false;
    }
    POINT at = {};
    GetCursorPos(&at);
    ScreenToClient(Handle(), &at);
    const bool grab = m_scene.wouldGrab(static_cast<float>(at.x), static_cast<float>(at.y));
    const bool drawing = m_scene.unfinished() < m_scene.entries().size();
    const LPCWSTR usual = drawing ? IDC_CROSS : IDC_ARROW;
    SetCursor(LoadCursorW(nullptr, grab && !drawing ? IDC_HAND : usual));
    return true;
}

void VideoView::Paint() {
    PAINTSTRUCT area = {};
    const HDC context = BeginPaint(Handle(), &area);
    try {
        render();
        m_buffer.show(context, 0, 0);
    } catch (...) {
        EndPaint(Handle(), &area);
        throw;
    }
    EndPaint(Handle(), &area);
}

void VideoView::render() {
    const Size size = clientSize();
    if (m_video == nullptr || size.width < 1 || size.height < 1) {
        return;
    }
    if (m_background.size != size) {
        m_background = scaled(m_video->frame(m_frameIndex), size);
    }
    m_buffer.copyFrom(m_background);
    PictureSurface surface(m_buffer.pixels(), size, m_fonts);
    m_scene.Paint(surface);
}

} // namespace rule_editor
