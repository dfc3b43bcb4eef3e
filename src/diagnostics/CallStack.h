#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace QvxDiagnostics {

// One frame of the stack; the module or symbol is empty when it is unknown.
struct StackFrame {
    std::string module;
    std::string symbol;
    std::uint64_t offset = 0; // into the symbol, in bytes
};

using StackSource = std::vector<StackFrame> (*)();

// The stack of the calling thread, innermost frame first; throws a std::exception when the platform gives none.
[[nodiscard]] std::vector<StackFrame> captureStack();

// The stack as text, one line for each frame: "module: symbol + 12 bytes". Never throws: a failed dump reads "Failed to
// get stack dump!" and the reason.
[[nodiscard]] std::string stackDump(StackSource source = captureStack);

} // namespace QvxDiagnostics
