#include "ui/editor_window.hpp"

#include "unicode.hpp"

#include <commdlg.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace rule_editor {

using rulecanvas::Outline;

namespace {

enum Control : WORD { LOG_LIST = 200, FIRST_BUTTON = 300 };
constexpr UINT NEXT_STEP = WM_APP + 1;
constexpr UINT_PTR PLAY_TIMER = 1;

constexpr int MARGIN = 12;
constexpr int BAR_HEIGHT = 48;
constexpr int BUTTON_HEIGHT = 26;
constexpr int BUTTON_GAP = 6;
constexpr int LOG_HEIGHT = 150;
constexpr int LOG_ROW_HEIGHT = 17;
constexpr int LOG_TEXT_MARGIN = 4;
constexpr size_t LONGEST_SHOWN_LOG = 2000;
/* With this size the built-in scene is shown pixel by pixel. */
constexpr Size FIRST_SIZE = {SidePanel::WIDTH + 3 * MARGIN + 960, BAR_HEIGHT + 540 + 2 * MARGIN + LOG_HEIGHT};
constexpr Size SMALLEST_SIZE = {720, 520};

constexpr const wchar_t* RULES_FILTER = L"Rules (*.json)\0*.json\0All files\0*.*\0";
constexpr const wchar_t* VIDEO_FILTER = L"Videos and pictures\0*.y4m;*.png;*.jpg;*.jpeg\0All files\0*.*\0";

struct Button {
    const wchar_t* caption;
    int width;
};

enum ButtonIndex { OPEN_VIDEO, PLAY, LOAD, SAVE, DESELECT, DELETE_RULE, CLEAR, COLOUR, DIRECTION };

constexpr Button BUTTONS[] = {{L"Open video", 92}, {L"Play", 66},     {L"Load rules", 88},
                              {L"Save rules", 88}, {L"Deselect", 78}, {L"Delete", 66},
                              {L"Clear", 62},      {L"Colour", 70},   {L"Direction", 80}};

/* The largest rectangle of the video's shape inside `area`, in its middle. */
RECT fitted(const RECT& area, Size video) {
    const int64_t width = std::max<LONG>(area.right - area.left, 1);
    const int64_t height = std::max<LONG>(area.bottom - area.top, 1);
    const bool wide = width * video.height > height * video.width;
    const auto shownWidth = static_cast<int>(wide ? std::max<int64_t>(height * video.width / video.height, 1) : width);
    const auto shownHeight = static_cast<int>(wide ? height : std::max<int64_t>(width * video.height / video.width, 1));
    const int left = area.left + (static_cast<int>(width) - shownWidth) / 2;
    const int top = area.top + (static_cast<int>(height) - shownHeight) / 2;
    return {left, top, left + shownWidth, top + shownHeight};
}

} // namespace

EditorWindow::EditorWindow(const Theme& theme, std::unique_ptr<VideoSource> video)
    : m_theme(theme), m_video(std::move(video)),
      m_scene({[this] {
                   if (m_view) {
                       m_view->redraw();
                   }
               },
               [this](bool take) { m_view->captureMouse(take); }, [this] { return m_view->clientRect(); },
               [this](const std::string& line) { log(line); }}) {
    create(L"RuleEditor", L"Rule editor", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, nullptr);
    addControls();
    showVideo();
    resizeClient(FIRST_SIZE);
}

/* Shapes speak to the log and the view when they end, so they end while both are there. */
EditorWindow::~EditorWindow() {
    m_scene.clear();
}

void EditorWindow::addControls() {
    m_panel = std::make_unique<SidePanel>(Handle(), m_theme,
                                          SidePanel::Events{[this](const std::string& type) { startTool(type, ""); },
                                                            [this](size_t rule) {
                                                                m_scene.select(rule);
                                                                refresh();
                                                            }});
    m_view = std::make_unique<VideoView>(
        Handle(), m_scene,
        VideoView::Events{[this] { refresh(); }, [this](const std::string& problem) { onFailure(problem); }});
    const auto add = [this](const wchar_t* kind, const wchar_t* text, DWORD style, size_t id) {
        const HWND control =
            CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, 0, 0, Handle(),
                            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
        return control;
    };
    for (size_t i = 0; i < std::size(BUTTONS); ++i) {
        m_buttons.push_back(add(L"BUTTON", BUTTONS[i].caption, BS_OWNERDRAW, FIRST_BUTTON + i));
    }
    m_logList =
        add(L"LISTBOX", L"", WS_VSCROLL | WS_BORDER | LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT | LBS_NOSEL, LOG_LIST);
    SendMessageW(m_logList, LB_SETITEMHEIGHT, 0, LOG_ROW_HEIGHT);
}

void EditorWindow::showVideo() {
    m_view->setVideo(*m_video);
    m_scene.SetVideoSize(m_video->size().width, m_video->size().height);
    if (!m_video->remark().empty()) {
        log(m_video->remark());
    }
}

void EditorWindow::resizeClient(Size size) {
    RECT area = {0, 0, size.width, size.height};
    AdjustWindowRect(&area, static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE);
    SetWindowPos(Handle(), nullptr, 0, 0, area.right - area.left, area.bottom - area.top, SWP_NOMOVE | SWP_NOZORDER);
}

void EditorWindow::layout() {
    const Size client = clientSize();
    int x = MARGIN;
    for (size_t i = 0; i < m_buttons.size(); ++i) {
        MoveWindow(m_buttons[i], x, (BAR_HEIGHT - BUTTON_HEIGHT) / 2, BUTTONS[i].width, BUTTON_HEIGHT, TRUE);
        x += BUTTONS[i].width + BUTTON_GAP;
    }
    m_panel->layout({MARGIN, BAR_HEIGHT, MARGIN + SidePanel::WIDTH, client.height - MARGIN});
    const int left = 2 * MARGIN + SidePanel::WIDTH;
    const int logTop = client.height - MARGIN - LOG_HEIGHT;
    MoveWindow(m_logList, left, logTop, std::max(client.width - left - MARGIN, 1), LOG_HEIGHT, TRUE);
    const RECT video = fitted({left, BAR_HEIGHT, client.width - MARGIN, logTop - MARGIN}, m_video->size());
    MoveWindow(m_view->Handle(), video.left, video.top, video.right - video.left, video.bottom - video.top, TRUE);
    redraw();
}

void EditorWindow::log(const std::string& line) {
    m_log.push_back(line);
    if (m_logList == nullptr) {
        return;
    }
    if (SendMessageW(m_logList, LB_GETCOUNT, 0, 0) >= static_cast<LRESULT>(LONGEST_SHOWN_LOG)) {
        SendMessageW(m_logList, LB_DELETESTRING, 0, 0);
    }
    const LRESULT row = SendMessageW(m_logList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    SendMessageW(m_logList, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
}

void EditorWindow::startTool(const std::string& type, const std::string& configuration) {
    if (type.empty()) {
        m_scene.abandonUnfinished();
        m_scene.SetTip("");
        refresh();
        return;
    }
    Rule rule;
    m_panel->fillIn(rule);
    rule.type = type;
    rule.configuration = configuration;
    m_scene.select(m_scene.entries().size());
    const bool added = m_scene.add(rule);
    if (added) {
        m_panel->setSettings(Rule());
        m_scene.SetTip(configuration.empty() ? m_panel->hintOf(type) : "");
        SetFocus(m_view->Handle());
    }
    refresh();
    if (!added) {
        throw std::runtime_error("the library refuses this rule of type " + type);
    }
}

size_t EditorWindow::currentRule() const {
    const std::vector<bool> selection = m_scene.selection();
    const auto first = std::find(selection.begin(), selection.end(), true);
    return first != selection.end() ? static_cast<size_t>(first - selection.begin()) : m_scene.last();
}

void EditorWindow::save(const std::wstring& path) {
    m_scene.save(path);
    log("rules saved: " + std::to_string(m_scene.entries().size()));
}

void EditorWindow::load(const std::wstring& path) {
    m_scene.load(path);
    log("rules loaded: " + std::to_string(m_scene.entries().size()));
    refresh();
}

void EditorWindow::refresh() {
    const size_t unfinished = m_scene.unfinished();
    const bool drawing = unfinished < m_scene.entries().size();
    m_panel->markTool(drawing ? m_scene.entries()[unfinished].rule.type : "");
    m_panel->showRules(m_scene);
}

void EditorWindow::play(bool playing) {
    m_playing = playing && m_video->framesPerSecond() > 0.0;
    KillTimer(Handle(), PLAY_TIMER);
    if (m_playing) {
        SetTimer(Handle(), PLAY_TIMER, static_cast<UINT>(1000.0 / m_video->framesPerSecond()), nullptr);
    }
    SetWindowTextW(m_buttons[PLAY], m_playing ? L"Pause" : L"Play");
}

void EditorWindow::runScript(std::function<void()> step, std::function<void(const std::string&)> failed) {
    m_step = std::move(step);
    m_scriptFailed = std::move(failed);
    m_view->listenToScriptOnly();
    nextStep();
}

void EditorWindow::nextStep() {
    PostMessageW(Handle(), NEXT_STEP, 0, 0);
}

bool EditorWindow::takesKey(const MSG& message) {
    if (message.message != WM_KEYDOWN) {
        return false;
    }
    const bool forView = message.hwnd == m_view->Handle();
    wchar_t kind[8] = {};
    GetClassNameW(message.hwnd, kind, static_cast<int>(std::size(kind)));
    const bool typing = lstrcmpiW(kind, L"EDIT") == 0;
    if (message.wParam == VK_ESCAPE && !forView) {
        SendMessageW(m_view->Handle(), WM_KEYDOWN, VK_ESCAPE, 0);
        return true;
    }
    if (message.wParam == VK_DELETE && !typing) {
        deleteCurrent();
        return true;
    }
    MSG dialogKey = message;
    return !forView && IsDialogMessageW(Handle(), &dialogKey) != FALSE;
}

LRESULT EditorWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED && m_logList != nullptr) {
            layout();
        }
        return 0;
    case WM_GETMINMAXINFO:
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {SMALLEST_SIZE.width, SMALLEST_SIZE.height};
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_COMMAND:
        onCommand(LOWORD(wParam), HIWORD(wParam));
        return 0;
    case WM_MEASUREITEM:
        reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = SidePanel::ROW_HEIGHT;
        return TRUE;
    case WM_DRAWITEM:
        onDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_CTLCOLORSTATIC:
        SetBkColor(reinterpret_cast<HDC>(wParam), Theme::WINDOW);
        SetTextColor(reinterpret_cast<HDC>(wParam), Theme::INK);
        return reinterpret_cast<LRESULT>(m_theme.window());
    case WM_TIMER:
        m_view->showFrame(m_view->frameIndex() + 1);
        return 0;
    case NEXT_STEP:
        m_step();
        return 0;
    case WM_CLOSE:
        PostQuitMessage(0);
        return 0;
    default:
        return Window::onMessage(message, wParam, lParam);
    }
}

void EditorWindow::onFailure(const std::string& problem) {
    play(false);
    log("problem: " + problem);
    if (m_scriptFailed) {
        m_scriptFailed(problem);
    } else {
        MessageBoxW(Handle(), toWide(problem).c_str(), L"Rule editor", MB_ICONWARNING);
    }
}

void EditorWindow::Paint() {
    PAINTSTRUCT area = {};
    const HDC context = BeginPaint(Handle(), &area);
    m_theme.fill(context, area.rcPaint, Theme::WINDOW);
    m_panel->paintHeadings(context);
    EndPaint(Handle(), &area);
}

void EditorWindow::onCommand(WORD control, WORD event) {
    if (m_panel && m_panel->onCommand(control, event)) {
        return;
    }
    if (control >= FIRST_BUTTON && control < FIRST_BUTTON + m_buttons.size() && event == BN_CLICKED) {
        pressButton(static_cast<size_t>(control - FIRST_BUTTON));
    }
}

void EditorWindow::onDrawItem(const DRAWITEMSTRUCT& item) {
    if (item.CtlID == LOG_LIST) {
        drawLogLine(item);
    } else if (item.CtlType == ODT_BUTTON) {
        wchar_t caption[32] = {};
        GetWindowTextW(item.hwndItem, caption, static_cast<int>(std::size(caption)));
        m_theme.drawButton(item, caption);
    } else if (m_panel) {
        m_panel->onDrawItem(item);
    }
}

/* The list holds the last lines of the log, one row each. */
void EditorWindow::drawLogLine(const DRAWITEMSTRUCT& item) {
    m_theme.fill(item.hDC, item.rcItem, Theme::PANEL);
    const auto shown = static_cast<size_t>(SendMessageW(m_logList, LB_GETCOUNT, 0, 0));
    if (item.itemID >= shown || shown > m_log.size()) {
        return;
    }
    const std::string& line = m_log[m_log.size() - shown + item.itemID];
    const size_t json = std::min(line.find('{'), line.size());
    const std::wstring summary = toWide(line.substr(0, json));
    RECT area = item.rcItem;
    area.left += LOG_TEXT_MARGIN;
    m_theme.write(item.hDC, area, summary, m_theme.text(), Theme::INK, DT_LEFT);
    area.left += m_theme.widthOf(item.hDC, summary, m_theme.text());
    m_theme.write(item.hDC, area, toWide(line.substr(json)), m_theme.smallText(), Theme::FAINT, DT_LEFT);
}

void EditorWindow::pressButton(size_t index) {
    switch (index) {
    case OPEN_VIDEO:
        openVideoByDialog();
        break;
    case PLAY:
        play(!m_playing);
        break;
    case LOAD:
        loadByDialog();
        break;
    case SAVE:
        saveByDialog();
        break;
    case DESELECT:
        m_scene.select(m_scene.entries().size());
        break;
    case DELETE_RULE:
        deleteCurrent();
        break;
    case CLEAR:
        m_scene.clear();
        break;
    case COLOUR:
        colourByDialog();
        break;
    default:
        nextDirection();
        break;
    }
    refresh();
}

void EditorWindow::openVideoByDialog() {
    const std::wstring path = askForPath(false, VIDEO_FILTER, nullptr);
    if (path.empty()) {
        return;
    }
    m_video = openVideo(path);
    showVideo();
    layout();
    play(true);
}

void EditorWindow::loadByDialog() {
    const std::wstring path = askForPath(false, RULES_FILTER, L"json");
    if (!path.empty()) {
        load(path);
    }
}

void EditorWindow::saveByDialog() {
    const std::wstring path = askForPath(true, RULES_FILTER, L"json");
    if (!path.empty()) {
        save(path);
    }
}

void EditorWindow::deleteCurrent() {
    m_scene.remove(currentRule());
    refresh();
}

/* One colour for both looks: the width and the handles still tell a selected rule. */
void EditorWindow::colourByDialog() {
    const size_t rule = currentRule();
    if (rule >= m_scene.entries().size()) {
        return;
    }
    static COLORREF custom[16] = {};
    CHOOSECOLORW choice = {};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = Handle();
    choice.lpCustColors = custom;
    choice.Flags = CC_FULLOPEN | CC_RGBINIT;
    if (!ChooseColorW(&choice)) {
        return;
    }
    const Colour colour = {GetRValue(choice.rgbResult), GetGValue(choice.rgbResult), GetBValue(choice.rgbResult)};
    m_scene.SetColour(rule, Outline::Selected, colour);
    m_scene.SetColour(rule, Outline::Unselected, colour);
}

void EditorWindow::nextDirection() {
    constexpr int32_t LAST_DIRECTION = 5;
    const size_t rule = currentRule();
    if (rule >= m_scene.entries().size()) {
        return;
    }
    const int32_t direction = m_scene.entries()[rule].rule.direction.value_or(-1);
    m_scene.SetDirection(rule, direction >= LAST_DIRECTION ? -1 : direction + 1);
    log(m_scene.entries()[rule].rule.name + ": direction " + std::to_string(*m_scene.entries()[rule].rule.direction));
}

std::wstring EditorWindow::askForPath(bool toSave, const wchar_t* filter, const wchar_t* extension) {
    wchar_t path[MAX_PATH] = {};
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = Handle();
    dialog.lpstrFilter = filter;
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.lpstrDefExt = extension;
    dialog.Flags = OFN_NOCHANGEDIR | (toSave ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    const bool chosen = toSave ? GetSaveFileNameW(&dialog) != FALSE : GetOpenFileNameW(&dialog) != FALSE;
    return chosen ? path : std::wstring();
}

} // namespace rule_editor
