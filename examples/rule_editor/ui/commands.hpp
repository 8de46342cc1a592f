#pragma once

#include <windows.h>

namespace rule_editor {

/// What buttons, keys and the context menu do. The numbers are those of menu items and of buttons.
enum class Command : WORD {
    None = 0,
    OpenVideo = 300,
    Play,
    New,
    Load,
    Save,
    Undo,
    Redo,
    Delete,
    Duplicate,
    Colour,
    Deselect,
    ToggleInForce,
    ToggleShown,
    ToggleLocked,
    FirstDirection = 400 ///< One for each direction that the type of the rule offers.
};

} // namespace rule_editor
