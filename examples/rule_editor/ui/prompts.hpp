#pragma once

#include <rulecanvas_kit/rule.hpp>

#include <windows.h>

#include <optional>
#include <string>

namespace rule_editor {

enum class SaveAnswer { Save, Discard, Cancel };
enum class PathPurpose { OpenVideo, OpenRules, SaveRules };

/// What the program asks people. Scripts answer by themselves.
class Prompts {
  public:
    virtual ~Prompts() = default;

    virtual SaveAnswer AskToSave(HWND owner) = 0;
    /// Empty when the user gives up.
    virtual std::wstring AskForPath(HWND owner, PathPurpose purpose) = 0;
    virtual std::optional<rulecanvas::kit::Colour> AskForColour(HWND owner, rulecanvas::kit::Colour first) = 0;
    virtual void Tell(HWND owner, const std::string& text) = 0;
    /// The chosen command, or 0.
    virtual UINT PickFromMenu(HWND owner, HMENU menu, POINT at) = 0;
};

class DialogPrompts final : public Prompts {
  public:
    SaveAnswer AskToSave(HWND owner) override;
    std::wstring AskForPath(HWND owner, PathPurpose purpose) override;
    std::optional<rulecanvas::kit::Colour> AskForColour(HWND owner, rulecanvas::kit::Colour first) override;
    void Tell(HWND owner, const std::string& text) override;
    UINT PickFromMenu(HWND owner, HMENU menu, POINT at) override;
};

extern const wchar_t* const ProgramTitle;

} // namespace rule_editor
