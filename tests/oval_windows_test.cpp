// What a debugger hears of an oval. The system raises an exception for it, with the text's length and address.

#include "support/scenario_host.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace rulecanvas::test {
namespace {

ScenarioHost* watched = nullptr;
Lines heard;

LONG CALLBACK Hear(EXCEPTION_POINTERS* pointers) {
    constexpr DWORD debuggerText = 0x40010006;
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode == debuggerText) {
        heard.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
        watched->onEntry("heard");
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(OvalOnWindows, TellsTheDebuggerItsStatesJustBeforeTheHost) {
    void* const handler = AddVectoredExceptionHandler(1, &Hear);
    ScenarioHost host;
    watched = &host;
    for (const char* type : {"OvalShape", "Rect"}) {
        host.Add(type);
        Lines order;
        host.onEntry = [&](const std::string& entry) { order.push_back(entry); };
        heard.clear();
        host.Drag({100, 100}, {200, 200});
        if (std::string(type) == "OvalShape") {
            EXPECT_EQ(heard, Lines{host.lastEventText});
            EXPECT_EQ(order, (Lines{"capture on", "redraw", "heard", "state rule 2>3", "capture on"}));
        } else {
            EXPECT_EQ(heard, Lines{}) << "no other shape does";
        }
        host.onEntry = nullptr;
        host.container.deleteAllShapes();
    }
    RemoveVectoredExceptionHandler(handler);
}

} // namespace
} // namespace rulecanvas::test
