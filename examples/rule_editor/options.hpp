#pragma once

#include <optional>
#include <string>
#include <vector>

namespace rule_editor {

/// The command line. Paths are as the user wrote them.
struct Options {
    std::wstring video;           ///< Empty: the built-in scene.
    std::wstring script;          ///< Empty: the program is used by a person.
    std::wstring snapshots;       ///< Folder for pictures and log of a script; the current one when empty.
    std::optional<unsigned> seed; ///< Play random events that this number determines.
    int events = 2000;            ///< How many of them.
};

/// Throws std::runtime_error with a message for the user.
Options ParseOptions(const std::vector<std::wstring>& arguments);

extern const char* const Usage;

} // namespace rule_editor
