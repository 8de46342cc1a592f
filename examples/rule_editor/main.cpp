#include "options.hpp"
#include "script/monkey.hpp"
#include "script/quiet_prompts.hpp"
#include "script/script_player.hpp"
#include "ui/editor_window.hpp"
#include "ui/theme.hpp"

#include <rulecanvas_kit/gdiplus.hpp>
#include <rulecanvas_kit/unicode.hpp>

#include <shellapi.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

using rule_editor::EditorWindow;
using rule_editor::Options;

constexpr int ExitUnusable = 2;

std::vector<std::wstring> Arguments() {
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> result;
    for (int i = 1; i < count; ++i) {
        result.emplace_back(words[i]);
    }
    LocalFree(words);
    return result;
}

/// A program with windows has no console of its own; one that was started from a console may use that.
void BorrowConsole() {
    if (GetStdHandle(STD_ERROR_HANDLE) == nullptr && AttachConsole(ATTACH_PARENT_PROCESS)) {
        std::freopen("CONOUT$", "w", stderr);
    }
}

int RunMessages(EditorWindow& window) {
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (window.TakesKey(message)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

int Run(const Options& options) {
    const rulecanvas::kit::GdiplusRuntime gdiplus;
    const rule_editor::Theme theme;
    const bool byPerson = options.script.empty() && !options.seed;
    const std::wstring folder = options.snapshots.empty() ? L"." : options.snapshots;
    rule_editor::DialogPrompts dialogs;
    rule_editor::QuietPrompts quiet;
    rule_editor::Prompts& prompts = byPerson ? static_cast<rule_editor::Prompts&>(dialogs) : quiet;
    EditorWindow window(theme, prompts, rule_editor::OpenVideo(options.video));
    std::optional<rule_editor::ScriptPlayer> player;
    std::optional<rule_editor::Monkey> monkey;
    if (!options.script.empty()) {
        player.emplace(window, quiet, options.script, folder);
    }
    ShowWindow(window.Handle(), SW_SHOWNORMAL);
    UpdateWindow(window.Handle());
    SetFocus(window.View().Handle());
    if (player) {
        player->Start();
    } else if (options.seed) {
        monkey.emplace(window, quiet, *options.seed, options.events, folder);
        monkey->Start();
    } else {
        window.Play(true);
    }
    return RunMessages(window);
}

/// Scripts are run by other programs, which read the error output; a person sees a box.
void Report(const std::string& problem, bool toPerson) {
    std::fprintf(stderr, "rule_editor: %s\n", problem.c_str());
    if (toPerson) {
        MessageBoxW(nullptr, rulecanvas::kit::ToWide(problem).c_str(), rule_editor::ProgramTitle, MB_ICONERROR);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    BorrowConsole();
    Options options;
    try {
        options = rule_editor::ParseOptions(Arguments());
    } catch (const std::exception& error) {
        Report(std::string(error.what()) + "\n" + rule_editor::Usage, false);
        return ExitUnusable;
    }
    try {
        return Run(options);
    } catch (const std::exception& error) {
        Report(error.what(), options.script.empty() && !options.seed);
        return ExitUnusable;
    }
}
