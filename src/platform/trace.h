#pragma once

#include <string>

namespace rulecanvas {

using TraceSink = void (*)(const char* line);

/// Whether refusals are told to anyone: RULECANVAS_TRACE=1 stood in the environment when the library was loaded, or a
/// sink is set.
bool IsTracing();

/// Lines of refusals go to the sink from now on; null: back to the environment's choice. For programs that link the
/// library's objects; call it while no other call runs.
void SetTraceSink(TraceSink sink);

/// Tells one refusal, without a line feed; only while tracing.
void Trace(const std::string& line);

/// Where rare calls say that they happened. That goes nowhere here; a build may route it to a log.
inline void DebugTrace(const char* /*text*/) {}

} // namespace rulecanvas
