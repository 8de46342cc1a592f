#include "script/script_player.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace rule_editor {

using rulecanvas::kit::PointerUse;
using rulecanvas::kit::RuleSet;
using rulecanvas::kit::ToUtf8;

namespace {

size_t DifferingPixels(const Frame& a, const Frame& b) {
    size_t count = 0;
    for (size_t i = 0; i < a.pixels.size(); ++i) {
        count += ((a.pixels[i] ^ b.pixels[i]) & 0x00FFFFFFU) != 0 ? 1U : 0U;
    }
    return count;
}

void ExpectInside(const std::string& text, const std::string& wanted) {
    if (text.find(wanted) == std::string::npos) {
        throw std::runtime_error("\"" + wanted + "\" is not in \"" + text + "\"");
    }
}

std::string TextOf(HWND control) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(control)), L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
    return ToUtf8(text);
}

/// The text after the first word.
std::string Rest(const ScriptStep& step) {
    return step.text.substr(step.words[0].size() + 1);
}

} // namespace

void ScriptPlayer::ExpectLog(const ScriptStep& step) {
    const std::vector<std::string>& lines = window.FullLog();
    for (size_t i = logSearched; i < lines.size(); ++i) {
        if (lines[i].find(step.text) != std::string::npos) {
            logSearched = i + 1;
            return;
        }
    }
    throw std::runtime_error("the log does not go on with: " + step.text);
}

void ScriptPlayer::ExpectConfig(const ScriptStep& step) {
    const auto& entry = window.Rules().Rules().Entries()[RequiredRule()];
    ExpectInside(window.Rules().Library().Configuration(entry.shape).str(), step.text);
}

void ScriptPlayer::ExpectRules(const ScriptStep& step) {
    const size_t count = window.Rules().Rules().Entries().size();
    if (static_cast<int>(count) != NumberAt(step, 0)) {
        throw std::runtime_error("there are " + std::to_string(count) + " rules");
    }
}

void ScriptPlayer::ExpectText(const ScriptStep& step) {
    if (step.command == "expect-help") {
        ExpectInside(window.Line().Help(), step.text);
    } else if (step.command == "expect-refusal") {
        ExpectInside(window.Line().Refusal(), step.text);
    } else if (step.command == "expect-title") {
        ExpectInside(TextOf(window.Handle()), step.text);
    } else if (step.command == "expect-told") {
        ExpectInside(prompts.told.empty() ? "" : prompts.told.back(), step.text);
    } else if (step.command == "expect-tool") {
        const auto* const drawn = window.Rules().Drawing();
        ExpectInside(drawn != nullptr ? drawn->type : "pointer", step.text);
    } else {
        const auto& shown = window.Panel().Shown();
        const std::map<std::string, std::string> texts = {{"name", shown.name},
                                                          {"label", shown.label},
                                                          {"caption", shown.caption},
                                                          {"option", shown.option},
                                                          {"direction", TextOf(window.Panel().Directions())}};
        ExpectInside(texts.at(step.words[0]), Rest(step));
    }
}

void ScriptPlayer::ExpectFile(const ScriptStep& step) {
    std::ifstream file(std::filesystem::path(InFolder(step.words[0])), std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    ExpectInside(text, Rest(step));
}

void ScriptPlayer::ExpectSelected(const ScriptStep& step) {
    const RuleSet& rules = window.Rules().Rules();
    const std::string name = rules.Selected() != RuleSet::None ? rules.Entries()[rules.Selected()].rule.name : "";
    if (name != step.text) {
        throw std::runtime_error("\"" + name + "\" is selected");
    }
}

void ScriptPlayer::ExpectCount(const ScriptStep& step) {
    const int count = step.command == "expect-questions" ? prompts.questions
                      : step.command == "expect-menus"   ? prompts.menus
                                                         : static_cast<int>(window.Rules().Corners().size());
    if (count != NumberAt(step, 0)) {
        throw std::runtime_error("there are " + std::to_string(count));
    }
}

void ScriptPlayer::ExpectAskedColour(const ScriptStep& step) {
    const rulecanvas::kit::Colour wanted = {NumberAt(step, 0), NumberAt(step, 1), NumberAt(step, 2)};
    if (!prompts.firstColour || !(*prompts.firstColour == wanted)) {
        throw std::runtime_error("the question for a colour did not begin with that colour");
    }
}

void ScriptPlayer::ExpectUse(const ScriptStep& step) {
    static const std::map<PointerUse, std::string> names = {{PointerUse::Nothing, "nothing"},
                                                            {PointerUse::Draw, "draw"},
                                                            {PointerUse::Close, "close"},
                                                            {PointerUse::Move, "move"},
                                                            {PointerUse::DragPoint, "drag"}};
    const PointerUse use =
        window.Rules().UseOf({static_cast<float>(NumberAt(step, 0)), static_cast<float>(NumberAt(step, 1))});
    if (names.at(use) != step.words[2]) {
        throw std::runtime_error("a press there would " + names.at(use));
    }
}

void ScriptPlayer::ExpectButton(const ScriptStep& step) {
    const bool enabled = IsWindowEnabled(ButtonNamed(step.words[0])) != FALSE;
    if (enabled != (step.words[1] == "enabled")) {
        throw std::runtime_error("the button is " + std::string(enabled ? "enabled" : "disabled"));
    }
}

void ScriptPlayer::Compare(const ScriptStep& step) {
    const Frame& a = PictureNamed(step.words[0]);
    const Frame& b = PictureNamed(step.words[1]);
    const bool comparable = a.size == b.size;
    const size_t different = comparable ? DifferingPixels(a, b) : 0;
    if (step.command == "differ" && comparable && different == 0) {
        throw std::runtime_error("the two pictures are equal");
    }
    if (step.command == "compare" && (!comparable || different > 0)) {
        throw std::runtime_error("the two pictures differ in " +
                                 (comparable ? std::to_string(different) + " pixels" : std::string("size")));
    }
}

const Frame& ScriptPlayer::PictureNamed(const std::string& name) const {
    const auto found = pictures.find(name);
    if (found == pictures.end()) {
        throw std::runtime_error("there is no snapshot named " + name);
    }
    return found->second;
}

} // namespace rule_editor
