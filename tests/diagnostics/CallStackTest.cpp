#include "diagnostics/CallStack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

using namespace QvxDiagnostics;

TEST(CallStack, aFrameShowsItsModuleItsSymbolAndTheOffsetInBytes) {
    EXPECT_EQ(stackDump([] {
                  return std::vector<StackFrame>{{"module", "inner", 12}, {"module", "outer", 345}};
              }),
              "module: inner + 12 bytes\nmodule: outer + 345 bytes");
}

TEST(CallStack, whatIsNotKnownIsSaidToBeSo) {
    EXPECT_EQ(stackDump([] { return std::vector<StackFrame>(1); }), "<no module>: <no symbol> + 0 bytes");
}

TEST(CallStack, aFailedDumpSaysWhy) {
    EXPECT_EQ(stackDump([]() -> std::vector<StackFrame> { throw std::runtime_error("Failed to initialize dbgHelp!"); }),
              "Failed to get stack dump!Failed to initialize dbgHelp!");
}

TEST(CallStack, aDumpThatFailsInAnUnknownWaySaysSo) {
    EXPECT_EQ(stackDump([]() -> std::vector<StackFrame> { throw 5; }),
              "Failed to get stack dump, unknown exception occurred");
}

TEST(CallStack, thePlatformNamesTheProgramThatAsked) {
    const std::vector<StackFrame> frames = captureStack();
    EXPECT_TRUE(std::any_of(frames.begin(), frames.end(),
                            [](const StackFrame& frame) { return frame.module == "diagnostics_tests"; }));
}
