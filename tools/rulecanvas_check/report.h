#pragma once

#include "rule.h"

namespace rulecanvas::check {

struct CheckedFile {
    std::string path;
    RuleList list;
};

/// A line for every rule and for every reason against a whole file.
std::string ReportAsLines(const std::vector<CheckedFile>& files);

/// The same as one line of JSON:
/// {"files":[{"file":"...","reasons":[],"rules":[{"name":"...","reasons":[],"taken":true,"type":"..."}],"taken":true}],
///  "taken":true}
std::string ReportAsJson(const std::vector<CheckedFile>& files);

} // namespace rulecanvas::check
