#include "ui/side_panel.hpp"

#include "picture/back_buffer.hpp"
#include "unicode.hpp"

#include <algorithm>

namespace rule_editor {

namespace {

enum Control : WORD { TOOL_LIST = 100, RULE_LIST = 101, FIRST_EDIT = 110, FIRST_LABEL = 120 };

constexpr int HEADING_HEIGHT = 26;
constexpr int SETTING_HEIGHT = 22;
constexpr int SETTING_GAP = 5;
constexpr int LABEL_WIDTH = 58;
constexpr int ICON_MARGIN = 2;
constexpr int TEXT_LEFT = 30;
constexpr int STATE_WIDTH = 84;

constexpr const wchar_t* HEADINGS[] = {L"DRAW", L"NEXT RULE", L"RULES"};
constexpr const wchar_t* POINTER_TITLE = L"Pointer: select and edit";

struct Setting {
    const wchar_t* title;
    std::string Rule::*member;
};

constexpr Setting SETTINGS[] = {
    {L"Name", &Rule::name}, {L"Label", &Rule::label}, {L"Caption", &Rule::caption}, {L"Option", &Rule::option}};

std::wstring textOf(HWND control) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(control)), L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

std::wstring stateName(int state) {
    switch (state) {
    case STATE_WAITING:
        return L"to be drawn";
    case STATE_BEING_DRAWN:
        return L"drawing";
    case STATE_COMPLETE:
        return L"complete";
    default:
        return L"editing";
    }
}

uint32_t toPixel(COLORREF colour) {
    return static_cast<uint32_t>(GetRValue(colour)) << 16U | static_cast<uint32_t>(GetGValue(colour)) << 8U |
           GetBValue(colour);
}

} // namespace

SidePanel::SidePanel(HWND parent, const Theme& theme, Events events)
    : m_parent(parent), m_theme(theme), m_events(std::move(events)), m_tools(availableTools()) {
    constexpr DWORD LIST = WS_VSCROLL | WS_BORDER | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    m_toolList = addControl(L"LISTBOX", L"", LIST, TOOL_LIST);
    m_ruleList = addControl(L"LISTBOX", L"", LIST, RULE_LIST);
    for (size_t i = 0; i < SETTING_COUNT; ++i) {
        const auto number = static_cast<WORD>(i);
        m_labels[i] = addControl(L"STATIC", SETTINGS[i].title, SS_CENTERIMAGE, static_cast<WORD>(FIRST_LABEL + number));
        m_edits[i] =
            addControl(L"EDIT", L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, static_cast<WORD>(FIRST_EDIT + number));
    }
    for (size_t i = 0; i <= m_tools.size(); ++i) {
        SendMessageW(m_toolList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    }
    markTool("");
}

HWND SidePanel::addControl(const wchar_t* kind, const wchar_t* text, DWORD style, WORD id) const {
    const HWND control =
        CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, m_parent,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(m_theme.text()), FALSE);
    return control;
}

/* The tools get the height they need while half of the panel is left for the rest. */
void SidePanel::layout(const RECT& area) {
    const int width = area.right - area.left;
    const int settings = static_cast<int>(SETTING_COUNT) * (SETTING_HEIGHT + SETTING_GAP);
    const int wanted = (static_cast<int>(m_tools.size()) + 1) * ROW_HEIGHT + 2;
    const int free = area.bottom - area.top - 3 * HEADING_HEIGHT - settings;
    const int toolHeight = std::clamp(wanted, ROW_HEIGHT, std::max(free * 3 / 4, ROW_HEIGHT));
    int y = area.top;
    const auto heading = [&](Heading which) {
        m_headings[which] = {area.left, y, area.right, y + HEADING_HEIGHT};
        y += HEADING_HEIGHT;
    };

    heading(DRAW);
    MoveWindow(m_toolList, area.left, y, width, toolHeight, TRUE);
    y += toolHeight;
    heading(NEXT_RULE);
    layoutSettings({area.left, y, area.right, y + settings});
    y += settings;
    heading(RULES);
    MoveWindow(m_ruleList, area.left, y, width, std::max(static_cast<int>(area.bottom) - y, 0), TRUE);
}

void SidePanel::layoutSettings(RECT area) {
    int y = area.top;
    for (size_t i = 0; i < SETTING_COUNT; ++i) {
        const int left = area.left + LABEL_WIDTH;
        MoveWindow(m_labels[i], area.left, y, LABEL_WIDTH, SETTING_HEIGHT, TRUE);
        MoveWindow(m_edits[i], left, y, area.right - left, SETTING_HEIGHT, TRUE);
        y += SETTING_HEIGHT + SETTING_GAP;
    }
}

void SidePanel::paintHeadings(HDC context) const {
    for (size_t i = 0; i < HEADING_COUNT; ++i) {
        m_theme.write(context, m_headings[i], HEADINGS[i], m_theme.strong(), Theme::FAINT, DT_LEFT);
    }
}

bool SidePanel::offers(const std::string& type) const {
    return std::any_of(m_tools.begin(), m_tools.end(), [&type](const Tool& tool) { return tool.type == type; });
}

const char* SidePanel::hintOf(const std::string& type) const {
    const auto found =
        std::find_if(m_tools.begin(), m_tools.end(), [&type](const Tool& tool) { return tool.type == type; });
    return found != m_tools.end() ? found->hint : "";
}

void SidePanel::markTool(const std::string& type) {
    const auto found =
        std::find_if(m_tools.begin(), m_tools.end(), [&type](const Tool& tool) { return tool.type == type; });
    const std::ptrdiff_t row = found != m_tools.end() ? found - m_tools.begin() + 1 : 0;
    if (SendMessageW(m_toolList, LB_GETCURSEL, 0, 0) != row) {
        SendMessageW(m_toolList, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    }
}

void SidePanel::fillIn(Rule& rule) const {
    for (size_t i = 0; i < SETTING_COUNT; ++i) {
        rule.*SETTINGS[i].member = toUtf8(textOf(m_edits[i]));
    }
}

void SidePanel::setSettings(const Rule& rule) {
    for (size_t i = 0; i < SETTING_COUNT; ++i) {
        SetWindowTextW(m_edits[i], toWide(rule.*SETTINGS[i].member).c_str());
    }
}

void SidePanel::showRules(const Scene& scene) {
    const std::vector<bool> selection = scene.selection();
    std::vector<RuleRow> rows;
    for (size_t i = 0; i < scene.entries().size(); ++i) {
        const SceneEntry& entry = scene.entries()[i];
        rows.push_back({toWide(entry.rule.name), entry.rule.type, stateName(entry.state), selection[i]});
    }
    if (rows == m_rows) {
        return;
    }
    m_rows = std::move(rows);
    auto shown = static_cast<size_t>(SendMessageW(m_ruleList, LB_GETCOUNT, 0, 0));
    for (; shown < m_rows.size(); ++shown) {
        SendMessageW(m_ruleList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
        SendMessageW(m_ruleList, LB_SETTOPINDEX, shown, 0);
    }
    for (; shown > m_rows.size(); --shown) {
        SendMessageW(m_ruleList, LB_DELETESTRING, shown - 1, 0);
    }
    InvalidateRect(m_ruleList, nullptr, FALSE);
}

bool SidePanel::onCommand(WORD control, WORD event) {
    if (control != TOOL_LIST && control != RULE_LIST) {
        return false;
    }
    if (event != LBN_SELCHANGE) {
        return true;
    }
    const LRESULT row = SendMessageW(control == TOOL_LIST ? m_toolList : m_ruleList, LB_GETCURSEL, 0, 0);
    if (row < 0) {
        return true;
    }
    const auto index = static_cast<size_t>(row);
    if (control == RULE_LIST) {
        m_events.ruleChosen(index);
    } else {
        m_events.toolChosen(index == 0 ? std::string() : m_tools.at(index - 1).type);
    }
    return true;
}

bool SidePanel::onDrawItem(const DRAWITEMSTRUCT& item) const {
    if (item.CtlID != TOOL_LIST && item.CtlID != RULE_LIST) {
        return false;
    }
    if (item.CtlID == TOOL_LIST) {
        drawTool(item);
    } else {
        drawRule(item);
    }
    return true;
}

void SidePanel::drawTool(const DRAWITEMSTRUCT& item) const {
    if (item.itemID > m_tools.size()) {
        return;
    }
    const bool chosen = (item.itemState & ODS_SELECTED) != 0;
    const COLORREF background = chosen ? Theme::CHOSEN : Theme::PANEL;
    m_theme.fill(item.hDC, item.rcItem, background);
    const bool pointer = item.itemID == 0;
    if (!pointer) {
        drawIcon(item, m_tools[item.itemID - 1].type, background);
    }
    RECT area = item.rcItem;
    area.left += pointer ? ICON_MARGIN + 4 : TEXT_LEFT;
    m_theme.write(item.hDC, area, pointer ? POINTER_TITLE : toWide(m_tools[item.itemID - 1].title), m_theme.text(),
                  Theme::INK, DT_LEFT);
}

void SidePanel::drawRule(const DRAWITEMSTRUCT& item) const {
    if (item.itemID >= m_rows.size()) {
        m_theme.fill(item.hDC, item.rcItem, Theme::PANEL);
        return;
    }
    const RuleRow& row = m_rows[item.itemID];
    const COLORREF background = row.selected ? Theme::CHOSEN : Theme::PANEL;
    m_theme.fill(item.hDC, item.rcItem, background);
    drawIcon(item, row.type, background);
    RECT title = item.rcItem;
    title.left += TEXT_LEFT;
    title.right -= STATE_WIDTH;
    m_theme.write(item.hDC, title, row.title, row.selected ? m_theme.strong() : m_theme.text(), Theme::INK, DT_LEFT);
    RECT state = item.rcItem;
    state.left = title.right;
    state.right -= 4;
    m_theme.write(item.hDC, state, row.state, m_theme.text(), Theme::FAINT, DT_RIGHT);
}

void SidePanel::drawIcon(const DRAWITEMSTRUCT& item, const std::string& type, COLORREF background) const {
    BackBuffer icon;
    icon.copyFrom(toolIcon(type, toPixel(background), toPixel(Theme::ACCENT)));
    icon.show(item.hDC, item.rcItem.left + ICON_MARGIN + 2, item.rcItem.top + ICON_MARGIN);
}

} // namespace rule_editor
