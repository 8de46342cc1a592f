#pragma once

#include "rules/scene.hpp"
#include "ui/side_panel.hpp"
#include "ui/theme.hpp"
#include "ui/video_view.hpp"
#include "ui/window.hpp"
#include "video/video_source.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace rule_editor {

/* The program's window: a tool bar, the side panel, the video view and the log. Its public functions are what the
 * user's clicks do; scripts call the same ones. */
class EditorWindow final : public Window {
  public:
    EditorWindow(const Theme& theme, std::unique_ptr<VideoSource> video);
    ~EditorWindow() override;

    void resizeClient(Size size);
    VideoView& view() { return *m_view; }
    Scene& scene() { return m_scene; }
    SidePanel& panel() { return *m_panel; }
    const std::vector<std::string>& logLines() const { return m_log; }
    void log(const std::string& line);

    /* Adds a rule of that type with the settings of the panel, which are then cleared; an empty type goes back to the
     * pointer. `configuration` empty: the user draws it. Throws std::runtime_error when the library refuses. */
    void startTool(const std::string& type, const std::string& configuration);
    /* The rule that the buttons act on: the first selected one, else the last; entries().size() without rules. */
    size_t currentRule() const;
    void save(const std::wstring& path);
    void load(const std::wstring& path);
    void refresh();

    void play(bool playing);
    /* Real input is ignored, posted script events count; `step` is called for every nextStep(). */
    void runScript(std::function<void()> step, std::function<void(const std::string&)> failed);
    void nextStep();

    /* True when the message was a key for the whole window and is done with. */
    bool takesKey(const MSG& message);

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onFailure(const std::string& problem) override;

  private:
    void addControls();
    void showVideo();
    void layout();
    void Paint();
    void onCommand(WORD control, WORD event);
    void onDrawItem(const DRAWITEMSTRUCT& item);
    void drawLogLine(const DRAWITEMSTRUCT& item);
    void pressButton(size_t index);

    void openVideoByDialog();
    void loadByDialog();
    void saveByDialog();
    void deleteCurrent();
    void colourByDialog();
    void nextDirection();
    std::wstring askForPath(bool toSave, const wchar_t* filter, const wchar_t* extension);

    const Theme& m_theme;
    std::unique_ptr<VideoSource> m_video;
    Scene m_scene;
    std::unique_ptr<VideoView> m_view;
    std::unique_ptr<SidePanel> m_panel;
    std::vector<HWND> m_buttons;
    HWND m_logList = nullptr;
    std::vector<std::string> m_log;
    bool m_playing = false;
    std::function<void()> m_step;
    std::function<void(const std::string&)> m_scriptFailed;
};

} // namespace rule_editor
