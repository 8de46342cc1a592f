#include "options.hpp"

#include <rulecanvas_kit/unicode.hpp>

#include <stdexcept>

namespace rule_editor {

using rulecanvas::kit::ToUtf8;

const char* const Usage =
    "usage: rule_editor [VIDEO] [--script FILE | --monkey SEED [--events N]] [--snapshot DIR]\n"
    "  VIDEO           a YUV4MPEG2 file (.y4m), a PNG or a JPEG; without it a built-in scene moves\n"
    "  --script FILE   run the steps of FILE and end\n"
    "  --monkey SEED   click and type at random and end; the same number gives the same events\n"
    "  --events N      how many times\n"
    "  --snapshot DIR  folder for the pictures and the log\n";

namespace {

unsigned ToNumber(const std::wstring& word) {
    if (word.empty() || word.size() > 8 || word.find_first_not_of(L"0123456789") != std::wstring::npos) {
        throw std::runtime_error(ToUtf8(word) + " is not a number");
    }
    return static_cast<unsigned>(std::stoul(word));
}

/// False for an option that there is not.
bool Take(Options& options, const std::wstring& word, const std::wstring& value) {
    if (word == L"--script") {
        options.script = value;
    } else if (word == L"--snapshot") {
        options.snapshots = value;
    } else if (word == L"--monkey") {
        options.seed = ToNumber(value);
    } else if (word == L"--events") {
        options.events = static_cast<int>(ToNumber(value));
    } else {
        return false;
    }
    return true;
}

} // namespace

Options ParseOptions(const std::vector<std::wstring>& arguments) {
    Options options;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& word = arguments[i];
        if (word.rfind(L"--", 0) == 0) {
            if (i + 1 == arguments.size() || !Take(options, word, arguments[i + 1])) {
                throw std::runtime_error("unknown option, or one without its value: " + ToUtf8(word));
            }
            ++i;
        } else if (options.video.empty()) {
            options.video = word;
        } else {
            throw std::runtime_error("more than one video: " + ToUtf8(word));
        }
    }
    if (!options.script.empty() && options.seed) {
        throw std::runtime_error("--script and --monkey exclude each other");
    }
    return options;
}

} // namespace rule_editor
