// What a debugger hears of an oval. The system raises an exception for it, with the text's length and address.

#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace rulecanvas::test {
namespace {

Lines heard;

LONG CALLBACK Hear(EXCEPTION_POINTERS* pointers) {
    constexpr DWORD debuggerText = 0x40010006;
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode == debuggerText) {
        heard.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(OvalOnWindows, AloneTellsTheDebuggerItsStatesJustBeforeTheHost) {
    void* const handler = AddVectoredExceptionHandler(1, &Hear);
    ScenarioHost host;
    host.onEntry = [&](const std::string& entry) {
        if (entry == "state rule 2>3") {
            heard.push_back(entry);
        }
    };
    host.Add("OvalShape");
    host.Drag({100, 100}, {200, 200});
    const std::string told = host.lastEventText;
    host.Add("Rect");
    host.Drag({300, 300}, {400, 400});
    EXPECT_EQ(heard, (Lines{told, "state rule 2>3", "state rule 2>3"}));
    RemoveVectoredExceptionHandler(handler);
}

} // namespace
} // namespace rulecanvas::test
