#pragma once

#include <string>
#include <vector>

namespace rule_editor {

/* The command line: `rule_editor [VIDEO] [--script FILE] [--snapshot DIR]`. Paths are as the user wrote them. */
struct Options {
    std::wstring video;     /* Empty: the built-in scene. */
    std::wstring script;    /* Empty: the program is used by a person. */
    std::wstring snapshots; /* Folder for pictures and log of a script; the current one when empty. */
};

/* Throws std::runtime_error with a message for the user. */
Options parseOptions(const std::vector<std::wstring>& arguments);

extern const char* const USAGE;

} // namespace rule_editor
