#include "options.hpp"
#include "picture/gdiplus.hpp"
#include "script/script_player.hpp"
#include "ui/editor_window.hpp"
#include "ui/theme.hpp"
#include "unicode.hpp"

#include <shellapi.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

using rule_editor::EditorWindow;
using rule_editor::Options;
using rule_editor::ScriptPlayer;

constexpr int EXIT_UNUSABLE = 2;

std::vector<std::wstring> arguments() {
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> result;
    for (int i = 1; i < count; ++i) {
        result.emplace_back(words[i]);
    }
    LocalFree(words);
    return result;
}

/* A program with windows has no console of its own; one that was started from a console may use that. */
void borrowConsole() {
    if (GetStdHandle(STD_ERROR_HANDLE) == nullptr && AttachConsole(ATTACH_PARENT_PROCESS)) {
        std::freopen("CONOUT$", "w", stderr);
    }
}

int messageLoop(EditorWindow& window) {
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (window.takesKey(message)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

int run(const Options& options) {
    const rule_editor::GdiplusRuntime gdiplus;
    const rule_editor::Theme theme;
    EditorWindow window(theme, rule_editor::openVideo(options.video));
    std::optional<ScriptPlayer> player;
    if (!options.script.empty()) {
        player.emplace(window, options.script, options.snapshots.empty() ? L"." : options.snapshots);
    }
    ShowWindow(window.Handle(), SW_SHOWNORMAL);
    UpdateWindow(window.Handle());
    if (player) {
        player->start();
    } else {
        window.play(true);
    }
    return messageLoop(window);
}

/* Scripts are run by other programs, which read the error output; a person sees a box. */
void report(const std::string& problem, bool toPerson) {
    std::fprintf(stderr, "rule_editor: %s\n", problem.c_str());
    if (toPerson) {
        MessageBoxW(nullptr, rule_editor::toWide(problem).c_str(), L"Rule editor", MB_ICONERROR);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    borrowConsole();
    Options options;
    try {
        options = rule_editor::parseOptions(arguments());
    } catch (const std::exception& error) {
        report(std::string(error.what()) + "\n" + rule_editor::USAGE, false);
        return EXIT_UNUSABLE;
    }
    try {
        return run(options);
    } catch (const std::exception& error) {
        report(error.what(), options.script.empty());
        return EXIT_UNUSABLE;
    }
}
