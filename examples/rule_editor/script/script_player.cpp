#include "script/script_player.hpp"

#include "script/input.hpp"
#include "script/png.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace rule_editor {

using rulecanvas::kit::ToUtf8;
using rulecanvas::kit::ToWide;

namespace {

constexpr int ExitDone = 0;
constexpr int ExitFailed = 1;
constexpr size_t AnyNumber = 1000;

bool IsExpectation(const std::string& command) {
    return command.rfind("expect", 0) == 0 || command == "compare" || command == "differ";
}

} // namespace

const std::vector<ScriptPlayer::Command>& ScriptPlayer::Commands() {
    static const std::vector<Command> list = {
        {"tool", 1, 1, &ScriptPlayer::Tool},
        {"name", 1, AnyNumber, &ScriptPlayer::Setting},
        {"label", 1, AnyNumber, &ScriptPlayer::Setting},
        {"caption", 1, AnyNumber, &ScriptPlayer::Setting},
        {"option", 1, AnyNumber, &ScriptPlayer::Setting},
        {"config", 1, AnyNumber, &ScriptPlayer::Config},
        {"press", 2, 2, &ScriptPlayer::Mouse},
        {"move", 2, 2, &ScriptPlayer::Mouse},
        {"release", 2, 2, &ScriptPlayer::Mouse},
        {"click", 2, 2, &ScriptPlayer::Mouse},
        {"dblclick", 2, 2, &ScriptPlayer::Mouse},
        {"rclick", 2, 2, &ScriptPlayer::Mouse},
        {"drag", 4, 5, &ScriptPlayer::Drag},
        {"key", 1, 1, &ScriptPlayer::Key},
        {"button", 1, 3, &ScriptPlayer::Button},
        {"tool-row", 1, 2, &ScriptPlayer::ToolRow},
        {"row", 1, AnyNumber, &ScriptPlayer::Row},
        {"box", 2, AnyNumber, &ScriptPlayer::Box},
        {"field", 1, AnyNumber, &ScriptPlayer::FieldText},
        {"choose-direction", 1, 1, &ScriptPlayer::DirectionChoice},
        {"menu", 3, 3, &ScriptPlayer::MenuChoice},
        {"steal-capture", 0, 0, &ScriptPlayer::StealCapture},
        {"close", 0, 0, &ScriptPlayer::Close},
        {"answer", 1, 2, &ScriptPlayer::Answer},
        {"answer-colour", 3, 3, &ScriptPlayer::AnswerColour},
        {"select", 1, AnyNumber, &ScriptPlayer::Select},
        {"deselect", 0, 0, &ScriptPlayer::Select},
        {"direction", 1, 1, &ScriptPlayer::Direction},
        {"colour", 4, 4, &ScriptPlayer::ChooseColour},
        {"limits", 2, 2, &ScriptPlayer::Limits},
        {"show", 0, AnyNumber, &ScriptPlayer::ShowOrHide},
        {"hide", 0, AnyNumber, &ScriptPlayer::ShowOrHide},
        {"delete", 0, AnyNumber, &ScriptPlayer::DeleteRule},
        {"clear", 0, 0, &ScriptPlayer::Clear},
        {"tip", 0, AnyNumber, &ScriptPlayer::Tip},
        {"resize", 2, 2, &ScriptPlayer::Resize},
        {"frame", 1, 1, &ScriptPlayer::ShowFrame},
        {"snapshot", 1, 1, &ScriptPlayer::Snapshot},
        {"save", 1, 1, &ScriptPlayer::Save},
        {"load", 1, 1, &ScriptPlayer::Load},
        {"write", 2, AnyNumber, &ScriptPlayer::WriteFile},
        {"expect-log", 1, AnyNumber, &ScriptPlayer::ExpectLog},
        {"expect-config", 1, AnyNumber, &ScriptPlayer::ExpectConfig},
        {"expect-rules", 1, 1, &ScriptPlayer::ExpectRules},
        {"expect-help", 1, AnyNumber, &ScriptPlayer::ExpectText},
        {"expect-refusal", 1, AnyNumber, &ScriptPlayer::ExpectText},
        {"expect-title", 1, AnyNumber, &ScriptPlayer::ExpectText},
        {"expect-told", 1, AnyNumber, &ScriptPlayer::ExpectText},
        {"expect-field", 2, AnyNumber, &ScriptPlayer::ExpectText},
        {"expect-tool", 1, 1, &ScriptPlayer::ExpectText},
        {"expect-file", 2, AnyNumber, &ScriptPlayer::ExpectFile},
        {"expect-selected", 0, AnyNumber, &ScriptPlayer::ExpectSelected},
        {"expect-questions", 1, 1, &ScriptPlayer::ExpectCount},
        {"expect-menus", 1, 1, &ScriptPlayer::ExpectCount},
        {"expect-corners", 1, 1, &ScriptPlayer::ExpectCount},
        {"expect-asked-colour", 3, 3, &ScriptPlayer::ExpectAskedColour},
        {"expect-use", 3, 3, &ScriptPlayer::ExpectUse},
        {"expect-button", 2, 3, &ScriptPlayer::ExpectButton},
        {"compare", 2, 2, &ScriptPlayer::Compare},
        {"differ", 2, 2, &ScriptPlayer::Compare},
    };
    return list;
}

const ScriptPlayer::Command* ScriptPlayer::Find(const std::string& name) {
    const auto found = std::find_if(Commands().begin(), Commands().end(),
                                    [&name](const Command& command) { return name == command.name; });
    return found != Commands().end() ? &*found : nullptr;
}

ScriptPlayer::ScriptPlayer(EditorWindow& played, QuietPrompts& answers, const std::wstring& script,
                           std::wstring pictureFolder)
    : window(played), prompts(answers), scriptPath(script), folder(std::move(pictureFolder)),
      steps(ReadScript(script)) {
    for (const ScriptStep& step : steps) {
        const Command* const command = Find(step.command);
        const std::string where = ToUtf8(script) + ":" + std::to_string(step.line) + ": ";
        if (command == nullptr) {
            throw std::runtime_error(where + "unknown command \"" + step.command + "\"");
        }
        if (step.words.size() < command->leastWords || step.words.size() > command->mostWords) {
            throw std::runtime_error(where + "\"" + step.command + "\" does not take " +
                                     std::to_string(step.words.size()) + " words");
        }
    }
    std::filesystem::create_directories(std::filesystem::path(folder));
}

void ScriptPlayer::Start() {
    window.RunScript([this] { PlayNext(); }, [this](const std::string& problem) { Fail(problem); });
}

void ScriptPlayer::PlayNext() {
    if (finished) {
        return;
    }
    ReleaseKeys();
    if (next == steps.size()) {
        std::printf("%d expectations held\n", expectations);
        Finish(ExitDone);
        return;
    }
    const ScriptStep& step = steps[next++];
    (this->*Find(step.command)->action)(step);
    expectations += IsExpectation(step.command) ? 1 : 0;
    window.NextStep();
}

void ScriptPlayer::Fail(const std::string& problem) {
    if (finished) {
        return;
    }
    const int line = next > 0 ? steps[next - 1].line : 0;
    std::fprintf(stderr, "%s:%d: %s\n", ToUtf8(scriptPath).c_str(), line, problem.c_str());
    WritePng(Screenshot(window.Handle()), InFolder("failure.png"));
    Finish(ExitFailed);
}

void ScriptPlayer::Finish(int exitCode) {
    finished = true;
    std::ofstream file(std::filesystem::path(InFolder("log.txt")), std::ios::binary);
    for (const std::string& line : window.FullLog()) {
        file << line << '\n';
    }
    PostQuitMessage(exitCode);
}

std::wstring ScriptPlayer::InFolder(const std::string& name) const {
    return (std::filesystem::path(folder) / std::filesystem::path(ToWide(name))).wstring();
}

} // namespace rule_editor
