#pragma once

#include "picture/back_buffer.hpp"
#include "picture/font_book.hpp"
#include "rules/scene.hpp"
#include "ui/window.hpp"
#include "video/video_source.hpp"

#include <functional>

namespace rule_editor {

/* The window with the video picture and the figures on it. It is the library's view: every mouse and key message goes
 * to the scene, every paint ends with the figures. */
class VideoView final : public Window {
  public:
    struct Events {
        std::function<void()> sceneMayHaveChanged;
        std::function<void(const std::string& problem)> failed;
    };

    VideoView(HWND parent, Scene& scene, Events events);

    /* The source stays the caller's and must live until it is replaced. */
    void setVideo(VideoSource& video);
    void showFrame(int index);
    int frameIndex() const { return m_frameIndex; }

    rulecanvas::ClientRect clientRect() const;
    /* What the library asks for. */
    void captureMouse(bool take);
    /* What the window shows, or would show if it were uncovered. */
    Frame picture();

    /* From now on only events marked with SCRIPTED count: the real pointer must not disturb a script. */
    void listenToScriptOnly() { m_scriptOnly = true; }

    /* Marks in the wParam of a mouse message, beside the system's own bits. */
    static constexpr WPARAM SCRIPTED = 0x80000000U;
    static constexpr WPARAM SCRIPTED_ALT = 0x40000000U;

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onFailure(const std::string& problem) override { m_events.failed(problem); }

  private:
    bool onMouse(UINT message, WPARAM wParam, LPARAM lParam);
    void send(rulecanvas::MouseCode code, POINT at);
    void onCaptureLost();
    bool chooseCursor();
    void Paint();
    void render();

    Scene& m_scene;
    Events m_events;
    VideoSource* m_video = nullptr;
    int m_frameIndex = 0;
    Frame m_background; /* The frame in the size of the window; empty when it has to be read again. */
    BackBuffer m_buffer;
    FontBook m_fonts;
    POINT m_pointer = {};
    bool m_capturing = false;
    bool m_scriptOnly = false;
};

} // namespace rule_editor
