#include "script/script_player.hpp"

#include "picture/back_buffer.hpp"
#include "picture/png.hpp"
#include "unicode.hpp"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace rule_editor {

using rulecanvas::Outline;

namespace {

constexpr int EXIT_DONE = 0;
constexpr int EXIT_FAILED = 1;
constexpr size_t ANY_NUMBER = 1000;
constexpr int USUAL_DRAG_STEPS = 8;
constexpr const char* POINTER = "pointer";

/* What the window shows in its client area, its controls included. */
Frame screenshot(HWND window, Size size) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    BackBuffer picture;
    picture.resize(size);
    const HDC context = GetDCEx(window, nullptr, DCX_CACHE);
    BitBlt(picture.context(), 0, 0, size.width, size.height, context, 0, 0, SRCCOPY);
    ReleaseDC(window, context);
    return picture.toFrame();
}

size_t differingPixels(const Frame& a, const Frame& b) {
    size_t count = 0;
    for (size_t i = 0; i < a.pixels.size(); ++i) {
        count += (a.pixels[i] ^ b.pixels[i]) & 0x00FFFFFFU ? 1U : 0U;
    }
    return count;
}

} // namespace

const std::vector<ScriptPlayer::Command>& ScriptPlayer::commands() {
    static const std::vector<Command> list = {
        {"tool", 1, 1, &ScriptPlayer::tool},
        {"name", 1, ANY_NUMBER, &ScriptPlayer::setting},
        {"label", 1, ANY_NUMBER, &ScriptPlayer::setting},
        {"caption", 1, ANY_NUMBER, &ScriptPlayer::setting},
        {"option", 1, ANY_NUMBER, &ScriptPlayer::setting},
        {"config", 1, ANY_NUMBER, &ScriptPlayer::config},
        {"press", 2, 2, &ScriptPlayer::press},
        {"move", 2, 2, &ScriptPlayer::move},
        {"release", 2, 2, &ScriptPlayer::release},
        {"click", 2, 2, &ScriptPlayer::click},
        {"drag", 4, 5, &ScriptPlayer::drag},
        {"rclick", 2, 2, &ScriptPlayer::rightClick},
        {"altrclick", 2, 2, &ScriptPlayer::altRightClick},
        {"key", 1, 1, &ScriptPlayer::key},
        {"select", 1, ANY_NUMBER, &ScriptPlayer::select},
        {"deselect", 0, 0, &ScriptPlayer::deselect},
        {"direction", 1, 1, &ScriptPlayer::direction},
        {"colour", 4, 4, &ScriptPlayer::colour},
        {"limits", 2, 2, &ScriptPlayer::limits},
        {"show", 0, ANY_NUMBER, &ScriptPlayer::showOrHide},
        {"hide", 0, ANY_NUMBER, &ScriptPlayer::showOrHide},
        {"delete", 0, ANY_NUMBER, &ScriptPlayer::deleteRule},
        {"clear", 0, 0, &ScriptPlayer::clear},
        {"tip", 0, ANY_NUMBER, &ScriptPlayer::tip},
        {"resize", 2, 2, &ScriptPlayer::resize},
        {"frame", 1, 1, &ScriptPlayer::frame},
        {"snapshot", 1, 1, &ScriptPlayer::snapshot},
        {"save", 1, 1, &ScriptPlayer::save},
        {"load", 1, 1, &ScriptPlayer::load},
        {"expect-log", 1, ANY_NUMBER, &ScriptPlayer::expectLog},
        {"expect-config", 1, ANY_NUMBER, &ScriptPlayer::expectConfig},
        {"expect-rules", 1, 1, &ScriptPlayer::expectRules},
        {"compare", 2, 2, &ScriptPlayer::compare},
        {"differ", 2, 2, &ScriptPlayer::differ},
    };
    return list;
}

const ScriptPlayer::Command* ScriptPlayer::find(const std::string& name) {
    const auto found = std::find_if(commands().begin(), commands().end(),
                                    [&name](const Command& command) { return name == command.name; });
    return found != commands().end() ? &*found : nullptr;
}

ScriptPlayer::ScriptPlayer(EditorWindow& window, const std::wstring& script, std::wstring folder)
    : m_window(window), m_scriptPath(script), m_folder(std::move(folder)), m_steps(readScript(script)) {
    for (const ScriptStep& step : m_steps) {
        const Command* const command = find(step.command);
        const std::string where = toUtf8(script) + ":" + std::to_string(step.line) + ": ";
        if (command == nullptr) {
            throw std::runtime_error(where + "unknown command \"" + step.command + "\"");
        }
        if (step.words.size() < command->leastWords || step.words.size() > command->mostWords) {
            throw std::runtime_error(where + "\"" + step.command + "\" does not take " +
                                     std::to_string(step.words.size()) + " words");
        }
    }
    std::filesystem::create_directories(std::filesystem::path(m_folder));
}

void ScriptPlayer::start() {
    m_window.runScript([this] { playNext(); }, [this](const std::string& problem) { fail(problem); });
}

void ScriptPlayer::playNext() {
    if (m_finished) {
        return;
    }
    if (m_next == m_steps.size()) {
        finish(EXIT_DONE);
        return;
    }
    const ScriptStep& step = m_steps[m_next++];
    (this->*find(step.command)->action)(step);
    m_window.nextStep();
}

void ScriptPlayer::fail(const std::string& problem) {
    if (m_finished) {
        return;
    }
    const int line = m_next > 0 ? m_steps[m_next - 1].line : 0;
    std::fprintf(stderr, "%s:%d: %s\n", toUtf8(m_scriptPath).c_str(), line, problem.c_str());
    writePng(screenshot(m_window.Handle(), m_window.clientSize()), inFolder("failure.png"));
    finish(EXIT_FAILED);
}

void ScriptPlayer::finish(int exitCode) {
    m_finished = true;
    writeLog();
    PostQuitMessage(exitCode);
}

void ScriptPlayer::writeLog() const {
    std::ofstream file(std::filesystem::path(inFolder("log.txt")), std::ios::binary);
    for (const std::string& line : m_window.logLines()) {
        file << line << '\n';
    }
}

std::wstring ScriptPlayer::inFolder(const std::string& name) const {
    return (std::filesystem::path(m_folder) / std::filesystem::path(toWide(name))).wstring();
}

void ScriptPlayer::tool(const ScriptStep& step) {
    const std::string& type = step.words[0];
    if (type == POINTER) {
        m_window.startTool("", "");
        return;
    }
    if (!m_window.panel().offers(type)) {
        throw std::runtime_error("there is no tool for the type " + type);
    }
    const std::string configuration = std::move(m_settings.configuration);
    m_settings = {};
    m_window.startTool(type, configuration);
}

void ScriptPlayer::setting(const ScriptStep& step) {
    static const std::map<std::string, std::string Rule::*> members = {
        {"name", &Rule::name}, {"label", &Rule::label}, {"caption", &Rule::caption}, {"option", &Rule::option}};
    m_settings.*members.at(step.command) = step.text;
    m_window.panel().setSettings(m_settings);
}

void ScriptPlayer::config(const ScriptStep& step) {
    m_settings.configuration = step.text;
}

void ScriptPlayer::press(const ScriptStep& step) {
    post(WM_LBUTTONDOWN, MK_LBUTTON, numberAt(step, 0), numberAt(step, 1));
}

void ScriptPlayer::move(const ScriptStep& step) {
    post(WM_MOUSEMOVE, 0, numberAt(step, 0), numberAt(step, 1));
}

void ScriptPlayer::release(const ScriptStep& step) {
    post(WM_LBUTTONUP, 0, numberAt(step, 0), numberAt(step, 1));
}

void ScriptPlayer::click(const ScriptStep& step) {
    press(step);
    release(step);
}

void ScriptPlayer::drag(const ScriptStep& step) {
    const int x1 = numberAt(step, 0);
    const int y1 = numberAt(step, 1);
    const int x2 = numberAt(step, 2);
    const int y2 = numberAt(step, 3);
    const int moves = step.words.size() > 4 ? std::clamp(numberAt(step, 4), 1, 1000) : USUAL_DRAG_STEPS;
    post(WM_LBUTTONDOWN, MK_LBUTTON, x1, y1);
    for (int i = 1; i <= moves; ++i) {
        post(WM_MOUSEMOVE, MK_LBUTTON, x1 + (x2 - x1) * i / moves, y1 + (y2 - y1) * i / moves);
    }
    post(WM_LBUTTONUP, 0, x2, y2);
}

void ScriptPlayer::rightClick(const ScriptStep& step) {
    post(WM_RBUTTONDOWN, MK_RBUTTON, numberAt(step, 0), numberAt(step, 1));
    post(WM_RBUTTONUP, 0, numberAt(step, 0), numberAt(step, 1));
}

void ScriptPlayer::altRightClick(const ScriptStep& step) {
    post(WM_RBUTTONDOWN, MK_RBUTTON | VideoView::SCRIPTED_ALT, numberAt(step, 0), numberAt(step, 1));
    post(WM_RBUTTONUP, VideoView::SCRIPTED_ALT, numberAt(step, 0), numberAt(step, 1));
}

void ScriptPlayer::key(const ScriptStep& step) {
    if (step.words[0] != "escape") {
        throw std::runtime_error("the only key that scripts know is escape");
    }
    PostMessageW(m_window.view().Handle(), WM_KEYDOWN, VK_ESCAPE, 0);
}

void ScriptPlayer::select(const ScriptStep& step) {
    m_window.scene().select(ruleNamed(step.text));
    m_window.refresh();
}

void ScriptPlayer::deselect(const ScriptStep&) {
    m_window.scene().select(m_window.scene().entries().size());
    m_window.refresh();
}

void ScriptPlayer::direction(const ScriptStep& step) {
    m_window.scene().SetDirection(requiredRule(), numberAt(step, 0));
}

void ScriptPlayer::colour(const ScriptStep& step) {
    const std::string& which = step.words[0];
    if (which != "selected" && which != "unselected") {
        throw std::runtime_error("colour takes \"selected\" or \"unselected\" and three numbers");
    }
    m_window.scene().SetColour(requiredRule(), which == "selected" ? Outline::Selected : Outline::Unselected,
                               {numberAt(step, 1), numberAt(step, 2), numberAt(step, 3)});
}

void ScriptPlayer::limits(const ScriptStep& step) {
    m_window.scene().SetPointLimits(requiredRule(), numberAt(step, 0), numberAt(step, 1));
}

void ScriptPlayer::showOrHide(const ScriptStep& step) {
    const size_t rule = step.text.empty() ? requiredRule() : ruleNamed(step.text);
    m_window.scene().show(rule, step.command == "show");
}

void ScriptPlayer::deleteRule(const ScriptStep& step) {
    m_window.scene().remove(step.text.empty() ? requiredRule() : ruleNamed(step.text));
    m_window.refresh();
}

void ScriptPlayer::clear(const ScriptStep&) {
    m_window.scene().clear();
    m_window.refresh();
}

void ScriptPlayer::tip(const ScriptStep& step) {
    m_window.scene().SetTip(step.text);
    m_window.view().redraw();
}

void ScriptPlayer::resize(const ScriptStep& step) {
    m_window.resizeClient({numberAt(step, 0), numberAt(step, 1)});
}

void ScriptPlayer::frame(const ScriptStep& step) {
    m_window.view().showFrame(std::max(numberAt(step, 0), 0));
}

void ScriptPlayer::snapshot(const ScriptStep& step) {
    const std::string& name = step.words[0];
    writePng(screenshot(m_window.Handle(), m_window.clientSize()), inFolder(name + ".png"));
    m_pictures[name] = m_window.view().picture();
}

void ScriptPlayer::save(const ScriptStep& step) {
    m_window.save(inFolder(step.words[0]));
}

void ScriptPlayer::load(const ScriptStep& step) {
    m_window.load(inFolder(step.words[0]));
}

void ScriptPlayer::expectLog(const ScriptStep& step) {
    const std::vector<std::string>& lines = m_window.logLines();
    for (size_t i = m_logSearched; i < lines.size(); ++i) {
        if (lines[i].find(step.text) != std::string::npos) {
            m_logSearched = i + 1;
            return;
        }
    }
    throw std::runtime_error("the log does not go on with: " + step.text);
}

void ScriptPlayer::expectConfig(const ScriptStep& step) {
    const std::string text = m_window.scene().Configuration(requiredRule());
    if (text.find(step.text) == std::string::npos) {
        throw std::runtime_error("the configuration is " + (text.empty() ? "empty" : text) + ", without " + step.text);
    }
}

void ScriptPlayer::expectRules(const ScriptStep& step) {
    const size_t count = m_window.scene().entries().size();
    if (static_cast<int>(count) != numberAt(step, 0)) {
        throw std::runtime_error("the scene has " + std::to_string(count) + " rules");
    }
}

void ScriptPlayer::compare(const ScriptStep& step) {
    const Frame& a = picture(step.words[0]);
    const Frame& b = picture(step.words[1]);
    if (a.size != b.size) {
        throw std::runtime_error("the two pictures have different sizes");
    }
    const size_t different = differingPixels(a, b);
    if (different > 0) {
        throw std::runtime_error("the two pictures differ in " + std::to_string(different) + " pixels");
    }
}

void ScriptPlayer::differ(const ScriptStep& step) {
    const Frame& a = picture(step.words[0]);
    const Frame& b = picture(step.words[1]);
    if (a.size == b.size && differingPixels(a, b) == 0) {
        throw std::runtime_error("the two pictures are equal");
    }
}

void ScriptPlayer::post(UINT message, WPARAM buttons, int x, int y) const {
    const LPARAM place = MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y));
    PostMessageW(m_window.view().Handle(), message, buttons | VideoView::SCRIPTED, place);
}

size_t ScriptPlayer::ruleNamed(const std::string& name) const {
    const size_t rule = m_window.scene().find(name);
    if (rule >= m_window.scene().entries().size()) {
        throw std::runtime_error("there is no rule named " + name);
    }
    return rule;
}

size_t ScriptPlayer::requiredRule() const {
    const size_t rule = m_window.currentRule();
    if (rule >= m_window.scene().entries().size()) {
        throw std::runtime_error("there is no rule");
    }
    return rule;
}

const Frame& ScriptPlayer::picture(const std::string& name) const {
    const auto found = m_pictures.find(name);
    if (found == m_pictures.end()) {
        throw std::runtime_error("there is no snapshot named " + name);
    }
    return found->second;
}

} // namespace rule_editor
