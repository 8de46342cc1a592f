/// A window that shows a picture and lets people edit rules on it.
#ifndef RULECANVAS_KIT_VIEW_HPP
#define RULECANVAS_KIT_VIEW_HPP

#include <rulecanvas_kit/back_buffer.hpp>
#include <rulecanvas_kit/font_book.hpp>
#include <rulecanvas_kit/gdiplus.hpp>
#include <rulecanvas_kit/rule_editor.hpp>

namespace rulecanvas::kit {

/// Turns the messages of a window into events of a RuleEditor, and paints. The window is the host's: its procedure gives
/// every message to HandleMessage, and it must outlive the view or stop doing so. Everything runs on the thread of the
/// window. Derive from it for the picture, and to hear what happens.
///
/// Beside the mouse it takes Escape, Enter (close), Backspace (take a corner back), Delete, the arrow keys (Shift: ten
/// pixels), Tab and Shift+Tab, Ctrl+Z, Ctrl+Y and Ctrl+D.
class View {
  public:
    explicit View(HWND handle);
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    RuleEditor& Rules() { return editor; }
    const RuleEditor& Rules() const { return editor; }

    /// True when the message is done with; the window procedure then returns `result`.
    bool HandleMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

    /// Asks for a paint.
    void Redraw() { InvalidateRect(window, nullptr, FALSE); }
    /// Draws now, and gives what the window would show if it were uncovered; valid until the next paint.
    const BackBuffer& Picture();
    Size ClientSize() const;

  protected:
    /// Draws what lies below the figures into a picture of that size. Black, if it is not overridden.
    virtual void PaintPicture(BackBuffer& target);
    /// Rules, selection, tool or history are not what they were.
    virtual void Changed() {}
    /// Something was refused, and why.
    virtual void Say(const std::string& text) { (void)text; }
    /// What the library reports, from inside its call.
    virtual void News(const RuleNews& news) { (void)news; }
    /// The mouse was taken or let go for a figure.
    virtual void CaptureChanged(bool taken) { (void)taken; }
    /// The right button was pressed for nothing else; `at` is on the screen.
    virtual void OpenMenu(POINT at) { (void)at; }
    virtual LPCWSTR CursorFor(PointerUse use) const;

  private:
    bool HandleMouse(UINT message, LPARAM lParam);
    bool HandleKey(WPARAM key);
    bool HandleControlKey(WPARAM key);
    void MoveSelected(int dx, int dy);
    void ReleaseRight(POINT at);
    void Capture(bool take);
    void LoseCapture();
    void ChooseCursor() const;
    void PaintWindow();
    void MarkCorners();

    HWND window;
    GdiplusRuntime gdiplus; ///< Before the fonts, which need it to the end.
    FontBook fonts;
    BackBuffer buffer;
    bool capturing = false;
    bool menuWanted = false;
    RuleEditor editor;
};

} // namespace rulecanvas::kit

#endif
