#pragma once

#include "ui/window.hpp"
#include "video/video_source.hpp"

#include <rulecanvas_kit/view.hpp>

#include <functional>
#include <memory>

namespace rule_editor {

/// The window with the video picture and the figures on it.
class VideoView final : public Window {
  public:
    struct Events {
        std::function<void()> changed;
        std::function<void(const std::string&)> say;
        std::function<void(const rulecanvas::kit::RuleNews&)> news;
        std::function<void(bool taken)> captured;
        std::function<void(POINT at)> menuWanted;
        std::function<void(const std::string& problem)> failed;
    };

    VideoView(HWND parent, Events given);
    ~VideoView() override;

    rulecanvas::kit::RuleEditor& Rules() { return view->Rules(); }
    const rulecanvas::kit::RuleEditor& Rules() const { return view->Rules(); }

    /// The source stays the caller's and must live until it is replaced.
    void SetVideo(VideoSource& video);
    void ShowFrame(int index);
    int FrameIndex() const { return frameIndex; }
    /// What the window shows, or would show if it were uncovered.
    const rulecanvas::kit::BackBuffer& Picture() { return view->Picture(); }

    /// From now on only mouse messages marked with Scripted count: the real pointer must not disturb a script.
    void ListenToScriptOnly() { scriptOnly = true; }
    /// A mark in the wParam of a mouse message, beside the system's own bits.
    static constexpr WPARAM Scripted = 0x80000000U;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnFailure(const std::string& problem) override { events.failed(problem); }

  private:
    class Canvas;

    void PaintVideo(rulecanvas::kit::BackBuffer& target);
    bool IsIgnored(UINT message, WPARAM wParam) const;

    Events events;
    VideoSource* source = nullptr;
    int frameIndex = 0;
    rulecanvas::kit::BackBuffer background; ///< The frame in the size of the window.
    bool backgroundReady = false;
    bool scriptOnly = false;
    std::unique_ptr<rulecanvas::kit::View> view;
};

} // namespace rule_editor
