#include "options.hpp"

#include "unicode.hpp"

#include <stdexcept>

namespace rule_editor {

const char* const USAGE =
    "usage: rule_editor [VIDEO] [--script FILE] [--snapshot DIR]\n"
    "  VIDEO           a YUV4MPEG2 file (.y4m), a PNG or a JPEG; without it a built-in scene moves\n"
    "  --script FILE   run the steps of FILE and end\n"
    "  --snapshot DIR  folder for the pictures and the log of the script\n";

Options parseOptions(const std::vector<std::wstring>& arguments) {
    Options options;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& word = arguments[i];
        const bool takesValue = word == L"--script" || word == L"--snapshot";
        if (takesValue && i + 1 == arguments.size()) {
            throw std::runtime_error(toUtf8(word) + " needs a value");
        }
        if (word == L"--script") {
            options.script = arguments[++i];
        } else if (word == L"--snapshot") {
            options.snapshots = arguments[++i];
        } else if (word.rfind(L"--", 0) == 0) {
            throw std::runtime_error("unknown option " + toUtf8(word));
        } else if (options.video.empty()) {
            options.video = word;
        } else {
            throw std::runtime_error("more than one video: " + toUtf8(word));
        }
    }
    if (options.script.empty() && !options.snapshots.empty()) {
        throw std::runtime_error("--snapshot needs --script");
    }
    return options;
}

} // namespace rule_editor
