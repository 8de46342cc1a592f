#pragma once

#include "rules/rule.hpp"

#include <string>

namespace rule_editor {

/* What a host has to know about single types. */

/* The geometry as the library takes it back: an oval writes it under its name but reads it under its type. */
std::string configurationToPass(const Rule& rule);

/* False for the spot: it is there after one click and sends no notification of it. */
bool tellsWhenComplete(const std::string& type);

} // namespace rule_editor
