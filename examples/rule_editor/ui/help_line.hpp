#pragma once

#include "ui/theme.hpp"

#include <string>

namespace rule_editor {

/// The line below the video: what the user may do next, or for a while why something was refused.
class HelpLine {
  public:
    HelpLine(HWND parent, const Theme& look, WORD id);

    HWND Handle() const { return line; }
    void SetHelp(const std::string& text);
    void Refuse(const std::string& reason);
    void ForgetRefusal();
    /// To be called about once a second.
    void Tick();
    void Draw(const DRAWITEMSTRUCT& item) const;
    const std::string& Help() const { return help; }
    const std::string& Refusal() const { return refusal; }

    static constexpr int Height = 22;

  private:
    const Theme& theme;
    HWND line;
    std::string help;
    std::string refusal;
    int ticksLeft = 0;
};

} // namespace rule_editor
