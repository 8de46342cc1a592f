#pragma once

#include "ui/prompts.hpp"

#include <string>
#include <vector>

namespace rule_editor {

/// Answers as a script or a monkey told it to.
class QuietPrompts final : public Prompts {
  public:
    SaveAnswer answer = SaveAnswer::Cancel;
    std::wstring path;                                  ///< The answer to every question for a path.
    std::optional<rulecanvas::kit::Colour> colour;      ///< The answer to every question for a colour.
    UINT menuChoice = 0;                                ///< The answer to every menu.
    std::vector<std::string> told;                      ///< What the program had to say.
    int questions = 0;                                  ///< How often it asked whether to save.
    int menus = 0;                                      ///< How often it showed a menu.
    std::optional<rulecanvas::kit::Colour> firstColour; ///< What the last question for a colour began with.

    SaveAnswer AskToSave(HWND) override {
        ++questions;
        return answer;
    }
    std::wstring AskForPath(HWND, PathPurpose) override { return path; }
    std::optional<rulecanvas::kit::Colour> AskForColour(HWND, rulecanvas::kit::Colour first) override {
        firstColour = first;
        return colour;
    }
    void Tell(HWND, const std::string& text) override { told.push_back(text); }
    UINT PickFromMenu(HWND, HMENU menu, POINT) override {
        ++menus;
        const UINT state = GetMenuState(menu, menuChoice, MF_BYCOMMAND);
        const bool possible = state != static_cast<UINT>(-1) && (state & MF_GRAYED) == 0;
        return possible ? menuChoice : 0;
    }
};

} // namespace rule_editor
