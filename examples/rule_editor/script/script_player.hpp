#pragma once

#include "script/quiet_prompts.hpp"
#include "script/script.hpp"
#include "ui/editor_window.hpp"
#include "video/frame.hpp"

#include <map>
#include <string>
#include <vector>

namespace rule_editor {

/// Plays a script on the window: steps of the mouse and the keyboard become posted window messages that go through the
/// ordinary message loop. A step begins when the messages of the one before it have been handled. The player ends the
/// message loop; the exit code of the program is then its result.
class ScriptPlayer {
  public:
    /// Throws std::runtime_error when the script is not understood. `folder` takes pictures, log and rules files.
    ScriptPlayer(EditorWindow& played, QuietPrompts& answers, const std::wstring& script, std::wstring pictureFolder);

    void Start();

  private:
    using Action = void (ScriptPlayer::*)(const ScriptStep&);
    struct Command {
        const char* name;
        size_t leastWords;
        size_t mostWords;
        Action action;
    };
    static const std::vector<Command>& Commands();
    static const Command* Find(const std::string& name);

    void PlayNext();
    void Fail(const std::string& problem);
    void Finish(int exitCode);
    std::wstring InFolder(const std::string& name) const;

    void Tool(const ScriptStep& step);
    void Setting(const ScriptStep& step);
    void Config(const ScriptStep& step);
    void Mouse(const ScriptStep& step);
    void Drag(const ScriptStep& step);
    void Key(const ScriptStep& step);
    void Button(const ScriptStep& step);
    void ToolRow(const ScriptStep& step);
    void Box(const ScriptStep& step);
    void Row(const ScriptStep& step);
    void FieldText(const ScriptStep& step);
    void DirectionChoice(const ScriptStep& step);
    void MenuChoice(const ScriptStep& step);
    void StealCapture(const ScriptStep& step);
    void Close(const ScriptStep& step);
    void Answer(const ScriptStep& step);
    void AnswerColour(const ScriptStep& step);
    void Select(const ScriptStep& step);
    void Direction(const ScriptStep& step);
    void ChooseColour(const ScriptStep& step);
    void Limits(const ScriptStep& step);
    void ShowOrHide(const ScriptStep& step);
    void DeleteRule(const ScriptStep& step);
    void Clear(const ScriptStep& step);
    void Tip(const ScriptStep& step);
    void Resize(const ScriptStep& step);
    void ShowFrame(const ScriptStep& step);
    void Snapshot(const ScriptStep& step);
    void Save(const ScriptStep& step);
    void Load(const ScriptStep& step);
    void WriteFile(const ScriptStep& step);

    void ExpectLog(const ScriptStep& step);
    void ExpectConfig(const ScriptStep& step);
    void ExpectRules(const ScriptStep& step);
    void ExpectText(const ScriptStep& step);
    void ExpectFile(const ScriptStep& step);
    void ExpectSelected(const ScriptStep& step);
    void ExpectCount(const ScriptStep& step);
    void ExpectAskedColour(const ScriptStep& step);
    void ExpectUse(const ScriptStep& step);
    void ExpectButton(const ScriptStep& step);
    void Compare(const ScriptStep& step);

    void Post(UINT message, WPARAM buttons, int x, int y) const;
    void Change(size_t rule, const rulecanvas::kit::Rule& changed);
    size_t RuleNamed(const std::string& name) const;
    size_t RequiredRule() const;
    HWND ButtonNamed(const std::string& name) const;
    const Frame& PictureNamed(const std::string& name) const;

    EditorWindow& window;
    QuietPrompts& prompts;
    std::wstring scriptPath;
    std::wstring folder;
    std::vector<ScriptStep> steps;
    size_t next = 0;
    int expectations = 0;
    rulecanvas::kit::Rule settings; ///< For the next rule.
    size_t logSearched = 0;         ///< Lines before it were matched by an expectation or come before one that was.
    std::map<std::string, Frame> pictures; ///< Of the video view, by the name of the snapshot.
    bool finished = false;
};

} // namespace rule_editor
