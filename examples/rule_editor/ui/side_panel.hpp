#pragma once

#include "rules/scene.hpp"
#include "ui/theme.hpp"
#include "ui/tools.hpp"

#include <windows.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace rule_editor {

/* The left side of the window: the tools, the settings of the next rule, the rules of the scene. */
class SidePanel {
  public:
    struct Events {
        std::function<void(const std::string& type)> toolChosen; /* Empty type: the pointer, which edits. */
        std::function<void(size_t rule)> ruleChosen;
    };

    SidePanel(HWND parent, const Theme& theme, Events events);

    static constexpr int WIDTH = 236;
    void layout(const RECT& area);
    void paintHeadings(HDC context) const;

    bool offers(const std::string& type) const;
    const char* hintOf(const std::string& type) const;
    /* Marks a tool in the list without choosing it; an empty type marks the pointer. */
    void markTool(const std::string& type);

    /* Texts of the next rule; type, colours and geometry are not part of the panel. */
    void fillIn(Rule& rule) const;
    void setSettings(const Rule& rule);

    void showRules(const Scene& scene);

    /* The parent passes on what its controls report; false when it concerns another control. */
    bool onCommand(WORD control, WORD event);
    bool onDrawItem(const DRAWITEMSTRUCT& item) const;

    static constexpr int ROW_HEIGHT = 24;

  private:
    struct RuleRow {
        std::wstring title;
        std::string type;
        std::wstring state;
        bool selected = false;

        bool operator==(const RuleRow& other) const {
            return title == other.title && type == other.type && state == other.state && selected == other.selected;
        }
    };

    enum Heading { DRAW, NEXT_RULE, RULES, HEADING_COUNT };
    static constexpr size_t SETTING_COUNT = 4;

    HWND addControl(const wchar_t* kind, const wchar_t* text, DWORD style, WORD id) const;
    void layoutSettings(RECT area);
    void drawTool(const DRAWITEMSTRUCT& item) const;
    void drawRule(const DRAWITEMSTRUCT& item) const;
    void drawIcon(const DRAWITEMSTRUCT& item, const std::string& type, COLORREF background) const;

    HWND m_parent;
    const Theme& m_theme;
    Events m_events;
    std::vector<Tool> m_tools;
    std::vector<RuleRow> m_rows;
    HWND m_toolList = nullptr;
    HWND m_ruleList = nullptr;
    std::array<HWND, SETTING_COUNT> m_labels = {};
    std::array<HWND, SETTING_COUNT> m_edits = {};
    std::array<RECT, HEADING_COUNT> m_headings = {};
};

} // namespace rule_editor
