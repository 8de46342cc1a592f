#pragma once

#include "host.h"

#include <random>
#include <vector>

namespace rulecanvas::torture {

/// Something that a host does from inside a callback.
struct Action {
    const char* name;
    void (*run)(Host& host, const Figure& figure);
};

/// Every exported function, every kind of mouse and key event where it matters, paints and sizes.
const std::vector<Action>& Actions();

} // namespace rulecanvas::torture
