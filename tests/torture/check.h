#pragma once

#include <string>

namespace rulecanvas::torture {

/// Names what is being tried, so that it can be found again when it ends badly; also by a sanitizer.
void BeginCase(std::string description);
void AddToCase(const std::string& description);

/// Ends the program, naming the case, when something does not hold.
void Require(bool met, const char* what);

} // namespace rulecanvas::torture
