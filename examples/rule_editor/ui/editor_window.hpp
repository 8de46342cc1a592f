#pragma once

#include "ui/commands.hpp"
#include "ui/help_line.hpp"
#include "ui/log_list.hpp"
#include "ui/prompts.hpp"
#include "ui/rule_list.hpp"
#include "ui/rule_panel.hpp"
#include "ui/theme.hpp"
#include "ui/tool_bar.hpp"
#include "ui/tool_list.hpp"
#include "ui/tooltips.hpp"
#include "ui/video_view.hpp"
#include "ui/window.hpp"

#include <rulecanvas_kit/rules_file.hpp>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace rule_editor {

/// The program's window. Its public functions are what the user's clicks do; scripts call the same ones.
class EditorWindow final : public Window {
  public:
    EditorWindow(const Theme& look, Prompts& asked, std::unique_ptr<VideoSource> shownVideo);
    ~EditorWindow() override;

    void ResizeClient(Size size);
    VideoView& View() { return *view; }
    rulecanvas::kit::RuleEditor& Rules() { return view->Rules(); }
    const rulecanvas::kit::RuleEditor& Rules() const { return view->Rules(); }
    RulePanel& Panel() { return *panel; }
    const ToolBar& Bar() const { return *bar; }
    const RuleList& List() const { return *ruleList; }
    const ToolList& Tools() const { return *toolList; }
    const HelpLine& Line() const { return *helpLine; }
    /// Everything that happened, for scripts; people see the changes alone.
    const std::vector<std::string>& FullLog() const { return fullLog; }

    /// Begins a rule of that type with the settings of the panel; an empty type goes back to the pointer. False when it is
    /// refused; the user was told why.
    bool StartTool(const std::string& type, bool keep);
    void SetNextRule(const rulecanvas::kit::Rule& rule);
    bool CanExecute(Command command) const;
    void Execute(Command command);
    /// False when it was refused; the user was told why.
    bool SaveTo(const std::wstring& path);
    bool LoadFrom(const std::wstring& path);

    void Play(bool start);
    /// Real mouse input is ignored, posted script events count; `step` is called for every NextStep().
    void RunScript(std::function<void()> step, std::function<void(const std::string&)> failed);
    void NextStep();

    /// True when the message was a key for the whole window and is done with.
    bool TakesKey(const MSG& message);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnFailure(const std::string& problem) override;

  private:
    void AddControls();
    void AddTooltips() const;
    VideoView::Events ViewEvents();
    void ShowVideo();
    Size SmallestClient() const;
    void Arrange();
    void Paint();
    void OnCommand(WORD control, WORD event);
    void OnDrawItem(const DRAWITEMSTRUCT& item) const;

    void Refresh();
    void ShowPanel();
    void ShowTitle();
    bool ApplyPanel(const rulecanvas::kit::Rule& rule);
    void Refuse(const std::string& reason);
    void Log(const std::string& line);
    void LogNews(const rulecanvas::kit::RuleNews& news);
    void LogChanges();

    size_t Selected() const;
    bool TakesShortcut(WPARAM key);
    void ToggleBox(size_t rule, RuleList::Box box);
    void OpenVideoByPrompt();
    void LoadByPrompt();
    bool SaveByPrompt();
    bool MayDiscard();
    void Clear();
    void ChangeColour();
    void SetDirection(int32_t direction);
    void OpenMenu(POINT at);

    const Theme& theme;
    Prompts& prompts;
    std::unique_ptr<VideoSource> video;
    std::unique_ptr<Tooltips> tooltips;
    std::unique_ptr<ToolBar> bar;
    std::unique_ptr<ToolList> toolList;
    std::unique_ptr<RulePanel> panel;
    std::unique_ptr<RuleList> ruleList;
    std::unique_ptr<HelpLine> helpLine;
    std::unique_ptr<LogList> logList;
    std::unique_ptr<VideoView> view;
    RECT drawHeading = {};
    RECT rulesHeading = {};

    std::wstring path;               ///< Of the rules file; empty before the first save or load.
    rulecanvas::kit::RulesFile file; ///< What was read beside the rules, to be written back.
    rulecanvas::kit::Rule nextRule;
    bool wasDrawing = false;
    std::vector<rulecanvas::kit::Rule> loggedRules;
    std::vector<std::string> fullLog;
    bool playing = false;
    bool closing = false;
    std::function<void()> scriptStep;
    std::function<void(const std::string&)> scriptFailed;
};

} // namespace rule_editor
