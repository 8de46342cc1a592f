#pragma once

#include "picture/frame.hpp"
#include "script/script.hpp"
#include "ui/editor_window.hpp"

#include <map>
#include <string>
#include <vector>

namespace rule_editor {

/* Plays a script on the window: mouse steps become posted window messages that go through the ordinary message loop,
 * the other steps do what the user's clicks do. A step begins when the messages of the one before it have been handled.
 * The player ends the message loop; the exit code of the program is then its result. */
class ScriptPlayer {
  public:
    /* Throws std::runtime_error when the script is not understood. `folder` takes pictures, log and rules files. */
    ScriptPlayer(EditorWindow& window, const std::wstring& script, std::wstring folder);

    void start();

  private:
    using Action = void (ScriptPlayer::*)(const ScriptStep&);
    struct Command {
        const char* name;
        size_t leastWords;
        size_t mostWords;
        Action action;
    };
    static const std::vector<Command>& commands();
    static const Command* find(const std::string& name);

    void playNext();
    void fail(const std::string& problem);
    void finish(int exitCode);
    void writeLog() const;
    std::wstring inFolder(const std::string& name) const;

    void tool(const ScriptStep& step);
    void setting(const ScriptStep& step);
    void config(const ScriptStep& step);
    void press(const ScriptStep& step);
    void move(const ScriptStep& step);
    void release(const ScriptStep& step);
    void click(const ScriptStep& step);
    void drag(const ScriptStep& step);
    void rightClick(const ScriptStep& step);
    void altRightClick(const ScriptStep& step);
    void key(const ScriptStep& step);
    void select(const ScriptStep& step);
    void deselect(const ScriptStep& step);
    void direction(const ScriptStep& step);
    void colour(const ScriptStep& step);
    void limits(const ScriptStep& step);
    void showOrHide(const ScriptStep& step);
    void deleteRule(const ScriptStep& step);
    void clear(const ScriptStep& step);
    void tip(const ScriptStep& step);
    void resize(const ScriptStep& step);
    void frame(const ScriptStep& step);
    void snapshot(const ScriptStep& step);
    void save(const ScriptStep& step);
    void load(const ScriptStep& step);
    void expectLog(const ScriptStep& step);
    void expectConfig(const ScriptStep& step);
    void expectRules(const ScriptStep& step);
    void compare(const ScriptStep& step);
    void differ(const ScriptStep& step);

    void post(UINT message, WPARAM buttons, int x, int y) const;
    size_t ruleNamed(const std::string& name) const;
    size_t requiredRule() const;
    const Frame& picture(const std::string& name) const;

    EditorWindow& m_window;
    std::wstring m_scriptPath;
    std::wstring m_folder;
    std::vector<ScriptStep> m_steps;
    size_t m_next = 0;
    Rule m_settings;          /* For the next rule. */
    size_t m_logSearched = 0; /* Lines before it were matched by an expectation or come before one that was. */
    std::map<std::string, Frame> m_pictures; /* Of the video view, by the name of the snapshot. */
    bool m_finished = false;
};

} // namespace rule_editor
