#include "ui/editor_window.hpp"

#include <rulecanvas_kit/figure_types.hpp>
#include <rulecanvas_kit/unicode.hpp>

namespace rule_editor {

using rulecanvas::kit::FigureType;
using rulecanvas::kit::Rule;
using rulecanvas::kit::RuleSet;

namespace {

/// A menu that ends with its parts.
class Menu {
  public:
    Menu() : menu(CreatePopupMenu()) {}
    ~Menu() { DestroyMenu(menu); }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    HMENU Handle() const { return menu; }
    void Add(Command command, const wchar_t* text, bool possible, bool checked = false) const {
        const UINT flags = (possible ? MF_ENABLED : MF_GRAYED) | (checked ? MF_CHECKED : MF_UNCHECKED);
        AppendMenuW(menu, MF_STRING | flags, static_cast<UINT_PTR>(command), text);
    }
    void AddLine() const { AppendMenuW(menu, MF_SEPARATOR, 0, nullptr); }

  private:
    HMENU menu;
};

void AddDirections(const Menu& menu, const Rule& rule) {
    const FigureType* const type = rulecanvas::kit::FindFigureType(rule.type);
    if (type == nullptr || type->directions.empty()) {
        return;
    }
    const HMENU choices = CreatePopupMenu();
    for (size_t i = 0; i < type->directions.size(); ++i) {
        const bool chosen = type->directions[i].direction == rule.direction.value_or(-1);
        AppendMenuW(choices, MF_STRING | (chosen ? MF_CHECKED : 0U), static_cast<UINT_PTR>(Command::FirstDirection) + i,
                    rulecanvas::kit::ToWide(type->directions[i].title).c_str());
    }
    AppendMenuW(menu.Handle(), MF_POPUP, reinterpret_cast<UINT_PTR>(choices), L"Direction");
}

void AddRuleItems(const Menu& menu, const Rule& rule) {
    menu.Add(Command::Duplicate, L"Duplicate\tCtrl+D", true);
    menu.Add(Command::Delete, L"Delete\tDel", true);
    menu.Add(Command::Colour, L"Colour...", true);
    AddDirections(menu, rule);
    menu.AddLine();
    menu.Add(Command::ToggleInForce, L"In force", true, rule.enabled);
    menu.Add(Command::ToggleShown, L"Shown", true, rule.visible);
    menu.Add(Command::ToggleLocked, L"Locked", true, rule.locked);
    menu.AddLine();
}

} // namespace

void EditorWindow::OpenMenu(POINT at) {
    const Menu menu;
    const size_t selected = Selected();
    if (selected != RuleSet::None) {
        AddRuleItems(menu, Rules().Rules().Entries()[selected].rule);
    }
    menu.Add(Command::Undo, L"Undo\tCtrl+Z", CanExecute(Command::Undo));
    menu.Add(Command::Redo, L"Redo\tCtrl+Y", CanExecute(Command::Redo));
    Execute(static_cast<Command>(prompts.PickFromMenu(Handle(), menu.Handle(), at)));
}

} // namespace rule_editor
