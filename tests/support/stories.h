// Gestures in words, and tables of what comes of them.

#pragma once

#include "support/scenario_host.h"

#include <string>
#include <vector>

namespace rulecanvas::test {

constexpr const char* Refused = "refused";

/// The configuration with these points, "10,20 30,40"; a JSON text, nothing and a refusal stay as they are.
std::string Rule(std::string points, const std::string& name = "rule");

/// The configuration of the shape; a refusal when there is no shape.
std::string ReadBack(ScenarioHost& host, ShapeID shape);

/// Does what the words say: "press 10 20 move 30 40 release 30 40", "click", "right", "drag 10 20 30 40", and
/// "limits 4 3" for the shape that is selected.
void Act(ScenarioHost& host, const std::string& words);

/// What the host has heard since the last time: "select on redraw 4>3 off" is a selection, the capture, a redraw, a
/// state and the capture again.
std::string Heard(ScenarioHost& host);

constexpr const char* Moved = "select on 4>3 off";
constexpr const char* Reshaped = "select on 5>3 off";
constexpr const char* Removed = "off 3>0";

/// A figure, what is done to it, what the host hears, and the points in the end.
struct Story {
    const char* type;
    std::string option;
    std::string begin;
    std::string acts;
    std::string heard;
    std::string end;
};

void Check(const std::vector<Story>& stories);

} // namespace rulecanvas::test
