#include <rulecanvas_kit/view.hpp>

#include <rulecanvas_kit/picture_surface.hpp>

#include <windowsx.h>

#include <algorithm>

namespace rulecanvas::kit {

namespace {

constexpr int FarStep = 10;
constexpr float MarkHalf = 3.0F;
constexpr float FirstMarkRadius = 7.0F;
constexpr ColorF MarkFill = {1.0F, 255.0F, 255.0F, 255.0F};
constexpr ColorF MarkEdge = {1.0F, 20.0F, 20.0F, 20.0F};

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

PointF ToPoint(POINT at) {
    return {static_cast<float>(at.x), static_cast<float>(at.y)};
}

} // namespace

View::View(HWND handle)
    : window(handle),
      editor({[this] { return ClientSize(); }, [this](bool take) { Capture(take); }, [this] { Redraw(); },
              [this] { Changed(); }, [this](const std::string& text) { Say(text); },
              [this](const RuleNews& news) { News(news); }}) {}

View::~View() = default;

Size View::ClientSize() const {
    RECT area = {};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

bool View::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (message) {
    case WM_PAINT:
        PaintWindow();
        return true;
    case WM_ERASEBKGND:
        result = 1;
        return true;
    case WM_SIZE:
        editor.Resized();
        return true;
    case WM_KEYDOWN:
        return HandleKey(wParam);
    case WM_GETDLGCODE:
        result = DLGC_WANTALLKEYS;
        return true;
    case WM_SYSKEYUP:
        /// Alt belongs to a gesture here; let alone it would open the window's menu.
        return wParam == VK_MENU;
    case WM_CAPTURECHANGED:
        LoseCapture();
        return true;
    case WM_SETCURSOR:
        if (LOWORD(lParam) != HTCLIENT) {
            return false;
        }
        ChooseCursor();
        result = TRUE;
        return true;
    default:
        return HandleMouse(message, lParam);
    }
}

bool View::HandleMouse(UINT message, LPARAM lParam) {
    const POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
    case WM_MOUSEMOVE:
        editor.Move(ToPoint(at));
        Redraw();
        return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        SetFocus(window);
        message == WM_LBUTTONDOWN ? editor.LeftDown(ToPoint(at)) : editor.DoubleClick(ToPoint(at));
        return true;
    case WM_LBUTTONUP:
        editor.LeftUp(ToPoint(at));
        return true;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
        SetFocus(window);
        menuWanted = !editor.RightDown(ToPoint(at), IsDown(VK_MENU));
        return true;
    case WM_RBUTTONUP:
        ReleaseRight(at);
        return true;
    default:
        return false;
    }
}

void View::ReleaseRight(POINT at) {
    editor.RightUp(ToPoint(at));
    Redraw();
    if (menuWanted) {
        menuWanted = false;
        ClientToScreen(window, &at);
        OpenMenu(at);
    }
}

bool View::HandleKey(WPARAM key) {
    const int step = IsDown(VK_SHIFT) ? FarStep : 1;
    if (IsDown(VK_CONTROL)) {
        return HandleControlKey(key);
    }
    switch (key) {
    case VK_ESCAPE:
        editor.Escape();
        return true;
    case VK_RETURN:
        editor.CloseDrawing();
        return true;
    case VK_BACK:
        editor.TakeBackCorner();
        return true;
    case VK_DELETE:
        editor.Delete(editor.Rules().Selected());
        return true;
    case VK_TAB:
        editor.SelectNext(IsDown(VK_SHIFT));
        return true;
    case VK_LEFT:
        MoveSelected(-step, 0);
        return true;
    case VK_RIGHT:
        MoveSelected(step, 0);
        return true;
    case VK_UP:
        MoveSelected(0, -step);
        return true;
    case VK_DOWN:
        MoveSelected(0, step);
        return true;
    default:
        return false;
    }
}

bool View::HandleControlKey(WPARAM key) {
    switch (key) {
    case 'Z':
        editor.Undo();
        return true;
    case 'Y':
        editor.Redo();
        return true;
    case 'D':
        editor.Duplicate(editor.Rules().Selected());
        return true;
    default:
        return false;
    }
}

void View::MoveSelected(int dx, int dy) {
    editor.Nudge(editor.Rules().Selected(), dx, dy);
}

void View::Capture(bool take) {
    capturing = take;
    CaptureChanged(take);
    if (take) {
        SetCapture(window);
    } else if (GetCapture() == window) {
        ReleaseCapture();
    }
}

/// The end of the gesture will not be seen here.
void View::LoseCapture() {
    if (capturing && GetCapture() != window) {
        capturing = false;
        editor.CaptureLost();
    }
}

LPCWSTR View::CursorFor(PointerUse use) const {
    switch (use) {
    case PointerUse::Draw:
        return IDC_CROSS;
    case PointerUse::Close:
        return IDC_UPARROW;
    case PointerUse::Move:
        return IDC_SIZEALL;
    case PointerUse::DragPoint:
        return IDC_HAND;
    default:
        return IDC_ARROW;
    }
}

void View::ChooseCursor() const {
    POINT at = {};
    GetCursorPos(&at);
    ScreenToClient(window, &at);
    SetCursor(LoadCursorW(nullptr, CursorFor(editor.UseOf(ToPoint(at)))));
}

void View::PaintPicture(BackBuffer& target) {
    std::fill_n(target.Pixels(), target.PixelCount(), 0U);
}

const BackBuffer& View::Picture() {
    const Size size = ClientSize();
    if (size.width < 1 || size.height < 1) {
        return buffer;
    }
    buffer.Resize(size);
    PaintPicture(buffer);
    PictureSurface surface(buffer, fonts);
    editor.Paint(surface);
    MarkCorners();
    return buffer;
}

/// The library marks the points of complete figures only.
void View::MarkCorners() {
    SoftCanvas canvas(buffer.Pixels(), buffer.PictureSize());
    const std::vector<PointF>& corners = editor.Corners();
    for (const PointF& corner : corners) {
        const PointF topLeft = {corner.x - MarkHalf, corner.y - MarkHalf};
        const PointF bottomRight = {corner.x + MarkHalf, corner.y + MarkHalf};
        canvas.PaintRectangle(topLeft, bottomRight, MarkFill);
        canvas.StrokeRectangle(topLeft, bottomRight, 1.0F, MarkEdge, false);
    }
    if (!corners.empty() && editor.UseOf(corners[0]) == PointerUse::Close) {
        canvas.StrokeEllipse({corners[0].x - FirstMarkRadius, corners[0].y - FirstMarkRadius},
                             {corners[0].x + FirstMarkRadius, corners[0].y + FirstMarkRadius}, 2.0F, MarkFill);
    }
}

void View::PaintWindow() {
    PAINTSTRUCT area = {};
    const HDC context = BeginPaint(window, &area);
    try {
        Picture().Show(context, 0, 0);
    } catch (...) {
        EndPaint(window, &area);
        throw;
    }
    EndPaint(window, &area);
}

} // namespace rulecanvas::kit
