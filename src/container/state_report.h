#pragma once

#include "container/container.h"

#include <string>
#include <vector>

namespace rulecanvas {

/// One line of JSON: an array with the state of every shape of the containers in their order, or null without shapes.
std::string StateReport(const std::vector<std::shared_ptr<CVideoAnalyseContainer>>& containers);

} // namespace rulecanvas
