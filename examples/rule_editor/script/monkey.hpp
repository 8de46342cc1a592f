#pragma once

#include "script/quiet_prompts.hpp"
#include "ui/editor_window.hpp"

#include <random>
#include <string>
#include <vector>

namespace rule_editor {

/// Clicks and types at random, by window messages, and looks after every step that no rule is lost that undo or redo does
/// not bring back. The exit code of the program is its result.
class Monkey {
  public:
    Monkey(EditorWindow& played, QuietPrompts& answers, unsigned seed, int events, std::wstring pictureFolder);

    void Start();

  private:
    void Step();
    void Act();
    void CheckRules();
    bool BringsBack(const std::vector<rulecanvas::kit::Rule>& lost);
    void Finish(const std::string& problem);

    void DragSomewhere();
    void ClickSomewhere();
    void LoneMessage();
    void PressKey();
    void ChooseTool();
    void UseList();
    void PressButton();
    void TypeText();
    void ChooseDirection();
    void UseMenu();
    void Resize();
    void LoseCapture();
    void ChooseAnswers();

    int Pick(int low, int high);
    POINT Somewhere();
    POINT OnAFigure();
    void Post(UINT message, WPARAM buttons, POINT at);

    EditorWindow& window;
    QuietPrompts& prompts;
    std::mt19937 random;
    int eventsLeft;
    int sent = 0;
    int lostAndFound = 0;
    size_t mostRules = 0;
    std::wstring folder;
    std::vector<rulecanvas::kit::Rule> known;
    bool finished = false;
};

} // namespace rule_editor
