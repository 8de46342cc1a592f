#pragma once

#include "picture/frame.hpp"

#include <string>
#include <vector>

namespace rule_editor {

/* A kind of rule that the user can draw. */
struct Tool {
    const char* type;  /* As the library registers it. */
    const char* title; /* For the user. */
    const char* hint;  /* How it is drawn, for the tip in the picture. */
};

/* The tools whose types this library makes, in the order in which they are offered. */
std::vector<Tool> availableTools();

constexpr int TOOL_ICON_SIDE = 20;
/* A small picture of what a type draws, on a background of 0x00RRGGBB. Unknown types have an empty one. */
Frame toolIcon(const std::string& type, uint32_t background, uint32_t ink);

} // namespace rule_editor
