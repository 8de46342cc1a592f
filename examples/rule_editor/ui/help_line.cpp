#include "ui/help_line.hpp"

#include "ui/layout.hpp"

#include <rulecanvas_kit/unicode.hpp>

namespace rule_editor {

namespace {

constexpr int TicksOfRefusal = 6;

} // namespace

HelpLine::HelpLine(HWND parent, const Theme& look, WORD id)
    : theme(look), line(MakeControl(parent, L"STATIC", L"", SS_OWNERDRAW, id, look.Text())) {}

void HelpLine::SetHelp(const std::string& text) {
    if (text != help) {
        help = text;
        InvalidateRect(line, nullptr, FALSE);
    }
}

void HelpLine::Refuse(const std::string& reason) {
    refusal = reason;
    ticksLeft = TicksOfRefusal;
    InvalidateRect(line, nullptr, FALSE);
}

void HelpLine::Tick() {
    if (ticksLeft > 0 && --ticksLeft == 0) {
        ForgetRefusal();
    }
}

void HelpLine::ForgetRefusal() {
    refusal.clear();
    ticksLeft = 0;
    InvalidateRect(line, nullptr, FALSE);
}

void HelpLine::Draw(const DRAWITEMSTRUCT& item) const {
    const bool refused = !refusal.empty();
    const std::wstring text = rulecanvas::kit::ToWide(refused ? refusal : help);
    theme.Fill(item.hDC, item.rcItem, Theme::WindowColour);
    theme.Write(item.hDC, item.rcItem, text, refused ? theme.Strong() : theme.Text(),
                refused ? Theme::Warning : Theme::Ink, DT_LEFT);
}

} // namespace rule_editor
