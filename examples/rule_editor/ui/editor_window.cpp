#include "ui/editor_window.hpp"

#include <rulecanvas_kit/figure_types.hpp>

#include <algorithm>

namespace rule_editor {

using rulecanvas::kit::Rule;
using rulecanvas::kit::RuleSet;

namespace {

enum Control : WORD { ToolListControl = 100, RuleListControl, LogControl, HelpControl, FirstPanelControl = 200 };
constexpr UINT NextStepMessage = WM_APP + 1;
constexpr UINT_PTR PlayTimer = 1;
constexpr UINT_PTR HelpTimer = 2;
constexpr UINT HelpTick = 1000;

constexpr int Margin = 12;
constexpr int BarHeight = 48;
constexpr int PanelWidth = 236;
constexpr int HeadingHeight = 26;
constexpr int LowerHeight = 150;
constexpr int LeastViewHeight = 120;
constexpr int LeastListHeight = 60;
/// With this size the built-in scene is shown pixel by pixel at 96 dots an inch.
constexpr Size FirstSize = {PanelWidth + 3 * Margin + 960, BarHeight + 540 + 2 * Margin + LowerHeight};

/// The largest rectangle of the video's shape inside `area`, in its middle.
RECT Fitted(const RECT& area, Size video) {
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

EditorWindow::EditorWindow(const Theme& look, Prompts& asked, std::unique_ptr<VideoSource> shownVideo)
    : theme(look), prompts(asked), video(std::move(shownVideo)) {
    Create(L"RuleEditor", ProgramTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, nullptr);
    AddControls();
    AddTooltips();
    ShowVideo();
    ResizeClient({theme.Scaled(FirstSize.width), theme.Scaled(FirstSize.height)});
    SetTimer(Handle(), HelpTimer, HelpTick, nullptr);
    Refresh();
}

/// Shapes and controls speak to this object while they end.
EditorWindow::~EditorWindow() {
    closing = true;
}

void EditorWindow::AddControls() {
    bar = std::make_unique<ToolBar>(Handle(), theme);
    toolList = std::make_unique<ToolList>(Handle(), theme, ToolListControl,
                                          [this](const std::string& type, bool keep) { StartTool(type, keep); });
    panel = std::make_unique<RulePanel>(Handle(), theme, FirstPanelControl,
                                        [this](const Rule& rule) { return ApplyPanel(rule); });
    ruleList =
        std::make_unique<RuleList>(Handle(), theme, RuleListControl,
                                   RuleList::Events{[this](size_t rule) { Rules().Select(rule); },
                                                    [this](size_t rule, RuleList::Box box) { ToggleBox(rule, box); }});
    helpLine = std::make_unique<HelpLine>(Handle(), theme, HelpControl);
    logList = std::make_unique<LogList>(Handle(), theme, LogControl);
    view = std::make_unique<VideoView>(Handle(), ViewEvents());
    tooltips = std::make_unique<Tooltips>(Handle());
}

void EditorWindow::AddTooltips() const {
    const std::pair<HWND, const wchar_t*> tips[] = {
        {bar->ButtonOf(Command::OpenVideo), L"Show another video: YUV4MPEG2 (.y4m), PNG or JPEG"},
        {bar->ButtonOf(Command::Play), L"Let the video run or stand still"},
        {bar->ButtonOf(Command::New), L"Remove all rules (Ctrl+N)"},
        {bar->ButtonOf(Command::Load), L"Replace the rules by those of a file (Ctrl+O)"},
        {bar->ButtonOf(Command::Save), L"Write all rules into a file (Ctrl+S)"},
        {bar->ButtonOf(Command::Undo), L"Take the last change back (Ctrl+Z)"},
        {bar->ButtonOf(Command::Redo), L"Make the change again that was taken back (Ctrl+Y)"},
        {bar->ButtonOf(Command::Duplicate), L"Make a copy of the selected rule (Ctrl+D)"},
        {bar->ButtonOf(Command::Delete), L"Remove the selected rule (Delete)"},
        {bar->ButtonOf(Command::Colour), L"Choose the colour of the selected rule"},
        {bar->ButtonOf(Command::Deselect), L"Select nothing (Escape)"},
        {toolList->Handle(), L"Click a tool to draw one figure; double click it to keep it"},
        {ruleList->Handle(), L"E: in force, S: shown, L: locked against the mouse. Click a name to select the rule"},
        {panel->EditOf(RulePanel::Name), L"Names the rule in files and notifications; no two rules share one"},
        {panel->EditOf(RulePanel::Label), L"The event name in the notifications of the rule"},
        {panel->EditOf(RulePanel::Caption), L"Drawn beside the figure"},
        {panel->EditOf(RulePanel::Option), L"A word such as Convex, or a style such as {\"LineThickness\":3}"},
        {panel->Directions(), L"Which way the figure points"},
    };
    for (const auto& [control, text] : tips) {
        tooltips->Add(control, text);
    }
}

VideoView::Events EditorWindow::ViewEvents() {
    return {[this] { Refresh(); },
            [this](const std::string& text) { Refuse(text); },
            [this](const rulecanvas::kit::RuleNews& news) { LogNews(news); },
            [this](bool taken) { fullLog.emplace_back(taken ? "mouse captured" : "mouse released"); },
            [this](POINT at) { OpenMenu(at); },
            [this](const std::string& problem) { OnFailure(problem); }};
}

void EditorWindow::ShowVideo() {
    view->SetVideo(*video);
    if (!video->Remark().empty()) {
        Log(video->Remark());
    }
}

void EditorWindow::ResizeClient(Size size) {
    RECT area = {0, 0, size.width, size.height};
    AdjustWindowRect(&area, static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE);
    SetWindowPos(Handle(), nullptr, 0, 0, area.right - area.left, area.bottom - area.top, SWP_NOMOVE | SWP_NOZORDER);
}

/// The tool bar fits, and nothing below it vanishes.
Size EditorWindow::SmallestClient() const {
    const int lists = theme.Scaled(2 * (HeadingHeight + LeastListHeight));
    const int left = theme.Scaled(BarHeight + Margin) + panel->Height() + lists;
    const int right = theme.Scaled(BarHeight + LeastViewHeight + LowerHeight + 2 * Margin);
    return {bar->Width() + theme.Scaled(2 * Margin), std::max(left, right)};
}

/// The tools get the height they need while a part of the left side is left for the rules.
void EditorWindow::Arrange() {
    const Size client = ClientSize();
    const int margin = theme.Scaled(Margin);
    const int top = theme.Scaled(BarHeight);
    const int heading = theme.Scaled(HeadingHeight);
    const int right = margin + theme.Scaled(PanelWidth);
    const int free = client.height - margin - top - 2 * heading - panel->Height();
    const int toolsHeight = std::clamp(toolList->WantedHeight(), 0, std::max(free * 3 / 4, 0));
    Layout layout;
    bar->Place(layout, margin, (top - bar->Height()) / 2);
    int y = top + heading;
    drawHeading = {margin, top, right, y};
    layout.Move(toolList->Handle(), {margin, y, right, y + toolsHeight});
    y += toolsHeight;
    panel->Place(layout, {margin, y, right, y + panel->Height()});
    y += panel->Height();
    rulesHeading = {margin, y, right, y + heading};
    layout.Move(ruleList->Handle(), {margin, y + heading, right, client.height - margin});

    const int left = right + margin;
    const int lower = client.height - margin - theme.Scaled(LowerHeight);
    const int help = theme.Scaled(HelpLine::Height);
    layout.Move(helpLine->Handle(), {left, lower - margin + 4, client.width - margin, lower - margin + 4 + help});
    layout.Move(logList->Handle(), {left, lower - margin + 8 + help, client.width - margin, client.height - margin});
    layout.Move(view->Handle(), Fitted({left, top, client.width - margin, lower - margin}, video->PictureSize()));
    Redraw();
}

LRESULT EditorWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!tooltips || closing) {
        return Window::OnMessage(message, wParam, lParam);
    }
    switch (message) {
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) {
            Arrange();
        }
        return 0;
    case WM_GETMINMAXINFO: {
        RECT area = {0, 0, SmallestClient().width, SmallestClient().height};
        AdjustWindowRect(&area, WS_OVERLAPPEDWINDOW, FALSE);
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {area.right - area.left, area.bottom - area.top};
        return 0;
    }
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_SETFOCUS:
        SetFocus(view->Handle());
        return 0;
    case WM_COMMAND:
        OnCommand(LOWORD(wParam), HIWORD(wParam));
        return 0;
    case WM_DRAWITEM:
        OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_CTLCOLORSTATIC:
        SetBkColor(reinterpret_cast<HDC>(wParam), Theme::WindowColour);
        SetTextColor(reinterpret_cast<HDC>(wParam), Theme::Ink);
        return reinterpret_cast<LRESULT>(theme.WindowBrush());
    case WM_TIMER:
        wParam == PlayTimer ? view->ShowFrame(view->FrameIndex() + 1) : helpLine->Tick();
        return 0;
    case NextStepMessage:
        scriptStep();
        return 0;
    case WM_CLOSE:
        if (MayDiscard()) {
            PostQuitMessage(0);
        }
        return 0;
    default:
        return Window::OnMessage(message, wParam, lParam);
    }
}

void EditorWindow::OnFailure(const std::string& problem) {
    Play(false);
    Log("problem: " + problem);
    if (scriptFailed) {
        scriptFailed(problem);
    } else {
        prompts.Tell(Handle(), problem);
    }
}

void EditorWindow::Paint() {
    PAINTSTRUCT area = {};
    const HDC context = BeginPaint(Handle(), &area);
    theme.Fill(context, area.rcPaint, Theme::WindowColour);
    theme.Write(context, drawHeading, L"DRAW", theme.Strong(), Theme::Faint, DT_LEFT);
    theme.Write(context, rulesHeading, L"RULES", theme.Strong(), Theme::Faint, DT_LEFT);
    panel->PaintHeading(context);
    EndPaint(Handle(), &area);
}

void EditorWindow::OnCommand(WORD control, WORD event) {
    if (panel->OnCommand(control, event)) {
        return;
    }
    if (control == ToolListControl) {
        toolList->OnCommand(event);
    } else if (control == RuleListControl) {
        ruleList->OnCommand(event);
    } else {
        Execute(bar->CommandOf(control, event));
    }
}

void EditorWindow::OnDrawItem(const DRAWITEMSTRUCT& item) const {
    switch (item.CtlID) {
    case ToolListControl:
        toolList->Draw(item);
        break;
    case RuleListControl:
        ruleList->Draw(item);
        break;
    case LogControl:
        logList->Draw(item);
        break;
    case HelpControl:
        helpLine->Draw(item);
        break;
    default:
        bar->Draw(item);
        break;
    }
}

void EditorWindow::Play(bool start) {
    playing = start && video->FramesPerSecond() > 0.0;
    KillTimer(Handle(), PlayTimer);
    if (playing) {
        SetTimer(Handle(), PlayTimer, static_cast<UINT>(1000.0 / video->FramesPerSecond()), nullptr);
    }
    bar->SetCaption(Command::Play, playing ? L"Pause" : L"Play");
}

void EditorWindow::RunScript(std::function<void()> step, std::function<void(const std::string&)> failed) {
    scriptStep = std::move(step);
    scriptFailed = std::move(failed);
    view->ListenToScriptOnly();
    NextStep();
}

void EditorWindow::NextStep() {
    PostMessageW(Handle(), NextStepMessage, 0, 0);
}

} // namespace rule_editor
