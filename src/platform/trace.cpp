#include "platform/trace.h"

#include "platform/platform.h"

namespace rulecanvas {
namespace {

TraceSink ChosenByEnvironment() {
    static const TraceSink chosen = platform::HasEnvironment("RULECANVAS_TRACE", "1") ? &platform::WriteTrace : nullptr;
    return chosen;
}

TraceSink currentSink = ChosenByEnvironment();

} // namespace

bool IsTracing() {
    return currentSink != nullptr;
}

void SetTraceSink(TraceSink sink) {
    currentSink = sink != nullptr ? sink : ChosenByEnvironment();
}

void Trace(const std::string& line) {
    currentSink(line.c_str());
}

} // namespace rulecanvas
