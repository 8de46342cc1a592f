#include "ui/video_view.hpp"

namespace rule_editor {

using rulecanvas::kit::BackBuffer;

/// The kit's view, which reports to the events of this window.
class VideoView::Canvas final : public rulecanvas::kit::View {
  public:
    explicit Canvas(VideoView& given) : View(given.Handle()), owner(given) {}

  protected:
    void PaintPicture(BackBuffer& target) override { owner.PaintVideo(target); }
    void Changed() override { owner.events.changed(); }
    void Say(const std::string& text) override { owner.events.say(text); }
    void News(const rulecanvas::kit::RuleNews& news) override { owner.events.news(news); }
    void CaptureChanged(bool taken) override { owner.events.captured(taken); }
    void OpenMenu(POINT at) override { owner.events.menuWanted(at); }

  private:
    VideoView& owner;
};

VideoView::VideoView(HWND parent, Events given) : events(std::move(given)) {
    Create(L"RuleEditorVideo", L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP, parent);
    view = std::make_unique<Canvas>(*this);
}

VideoView::~VideoView() = default;

void VideoView::SetVideo(VideoSource& video) {
    source = &video;
    Rules().Library().SetVideoSize(video.PictureSize().width, video.PictureSize().height);
    ShowFrame(0);
}

void VideoView::ShowFrame(int index) {
    frameIndex = index % source->FrameCount();
    backgroundReady = false;
    Redraw();
}

bool VideoView::IsIgnored(UINT message, WPARAM wParam) const {
    const bool mouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    return scriptOnly && ((mouse && (wParam & Scripted) == 0) || message == WM_SETCURSOR);
}

LRESULT VideoView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (message == WM_SIZE) {
        backgroundReady = false;
    }
    if (!view || IsIgnored(message, wParam) || !view->HandleMessage(message, wParam, lParam, result)) {
        return Window::OnMessage(message, wParam, lParam);
    }
    return result;
}

void VideoView::PaintVideo(BackBuffer& target) {
    const Size size = target.PictureSize();
    if (source != nullptr && (!backgroundReady || background.PictureSize() != size)) {
        Frame frame = source->FrameAt(frameIndex);
        background.Resize(size);
        Gdiplus::Bitmap picture(frame.size.width, frame.size.height, frame.size.width * 4, PixelFormat32bppRGB,
                                reinterpret_cast<BYTE*>(frame.pixels.data()));
        Gdiplus::Bitmap shown(size.width, size.height, size.width * 4, PixelFormat32bppRGB,
                              reinterpret_cast<BYTE*>(background.Pixels()));
        Gdiplus::Graphics graphics(&shown);
        graphics.SetInterpolationMode(Gdiplus::InterpolationModeBilinear);
        graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
        graphics.DrawImage(&picture, 0, 0, size.width, size.height);
        backgroundReady = true;
    }
    target.CopyFrom(background);
}

} // namespace rule_editor
