#pragma once

namespace rulecanvas {

/// Where traces of rare calls go. They go nowhere here; a build may route them to a log.
inline void DebugTrace(const char* /*text*/) {}

} // namespace rulecanvas
