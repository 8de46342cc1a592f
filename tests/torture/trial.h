#pragma once

#include "host.h"

#include <string>
#include <vector>

namespace rulecanvas::torture {

/// What the life of a figure is like when nothing disturbs it.
struct Reference {
    /// What DrawFresh tells.
    std::string fresh;
    /// For each step of LifeOf, whether the mouse is captured after it.
    std::vector<bool> captured;
    /// Callbacks and allocations in the whole life.
    size_t callbacks = 0;
    long allocations = 0;
};

const Reference& ReferenceOf(const Figure& figure);

/// Whatever happened: no lock is held, and a new drawing goes as on the first day. Uses a new host for it when the
/// container of this one is gone.
void CheckAfterwards(Host& host, const Figure& figure);

} // namespace rulecanvas::torture
