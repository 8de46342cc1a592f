#include "script/monkey.hpp"

#include "script/input.hpp"
#include "script/png.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>

namespace rule_editor {

using rulecanvas::kit::Rule;

namespace {

constexpr int StepsBetweenPaints = 15;

} // namespace

Monkey::Monkey(EditorWindow& played, QuietPrompts& answers, unsigned seed, int events, std::wstring pictureFolder)
    : window(played), prompts(answers), random(seed), eventsLeft(events), folder(std::move(pictureFolder)) {
    std::filesystem::create_directories(std::filesystem::path(folder));
}

void Monkey::Start() {
    window.RunScript([this] { Step(); }, [this](const std::string& problem) { Finish(problem); });
}

void Monkey::Step() {
    if (finished) {
        return;
    }
    ReleaseKeys();
    try {
        CheckRules();
    } catch (const std::runtime_error& error) {
        Finish(error.what());
        return;
    }
    if (sent >= eventsLeft) {
        Finish("");
        return;
    }
    Act();
    if (Pick(0, StepsBetweenPaints) == 0) {
        /// The posted messages would keep paints waiting for ever.
        RedrawWindow(window.Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    window.NextStep();
}

void Monkey::Act() {
    struct Habit {
        int share;
        void (Monkey::*action)();
    };
    static const Habit habits[] = {
        {24, &Monkey::DragSomewhere}, {24, &Monkey::ClickSomewhere}, {6, &Monkey::LoneMessage},
        {14, &Monkey::PressKey},      {14, &Monkey::ChooseTool},     {8, &Monkey::UseList},
        {6, &Monkey::PressButton},    {4, &Monkey::TypeText},        {3, &Monkey::ChooseDirection},
        {5, &Monkey::UseMenu},        {1, &Monkey::Resize},          {2, &Monkey::LoseCapture},
        {3, &Monkey::ChooseAnswers},
    };
    int total = 0;
    for (const Habit& habit : habits) {
        total += habit.share;
    }
    int chosen = Pick(0, total - 1);
    for (const Habit& habit : habits) {
        chosen -= habit.share;
        if (chosen < 0) {
            (this->*habit.action)();
            return;
        }
    }
}

/// Every rule that is gone must come back by undo, or by redo when it was undo that took it.
void Monkey::CheckRules() {
    const std::vector<Rule> now = window.Rules().RulesToSave();
    std::set<std::string> names;
    for (const Rule& rule : now) {
        if (rule.configuration.empty() || !names.insert(rule.name).second) {
            throw std::runtime_error("a rule without geometry or with a name in use: " + rule.name);
        }
    }
    std::vector<Rule> lost;
    std::copy_if(known.begin(), known.end(), std::back_inserter(lost),
                 [&names](const Rule& rule) { return names.count(rule.name) == 0; });
    if (!lost.empty()) {
        if (!BringsBack(lost)) {
            throw std::runtime_error("lost for good: " + lost[0].name);
        }
        ++lostAndFound;
        if (window.Rules().RulesToSave() != now) {
            throw std::runtime_error("undo and redo do not lead back to where they began");
        }
    }
    mostRules = std::max(mostRules, now.size());
    known = now;
}

bool Monkey::BringsBack(const std::vector<Rule>& lost) {
    rulecanvas::kit::RuleEditor& editor = window.Rules();
    const auto found = [&] {
        const std::vector<Rule> rules = editor.RulesToSave();
        return std::all_of(lost.begin(), lost.end(), [&rules](const Rule& rule) {
            return std::find(rules.begin(), rules.end(), rule) != rules.end();
        });
    };
    editor.StopDrawing();
    int steps = 0;
    for (; !found() && editor.CanUndo(); ++steps) {
        editor.Undo();
    }
    const bool byUndo = found();
    for (; steps > 0; --steps) {
        editor.Redo();
    }
    if (byUndo) {
        return true;
    }
    for (; !found() && editor.CanRedo(); ++steps) {
        editor.Redo();
    }
    const bool byRedo = found();
    for (; steps > 0; --steps) {
        editor.Undo();
    }
    return byRedo;
}

void Monkey::Finish(const std::string& problem) {
    finished = true;
    std::printf("%d events, at most %u rules, %d times rules went and came back\n", sent,
                static_cast<unsigned>(mostRules), lostAndFound);
    WritePng(Screenshot(window.Handle()),
             (std::filesystem::path(folder) / (problem.empty() ? "monkey.png" : "failure.png")).wstring());
    std::ofstream log(std::filesystem::path(folder) / "log.txt", std::ios::binary);
    for (const std::string& line : window.FullLog()) {
        log << line << '\n';
    }
    if (!problem.empty()) {
        std::fprintf(stderr, "monkey: after %d events: %s\n", sent, problem.c_str());
    }
    PostQuitMessage(problem.empty() ? 0 : 1);
}

int Monkey::Pick(int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
}

} // namespace rule_editor
