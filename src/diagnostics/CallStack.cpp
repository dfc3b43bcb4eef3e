#include "diagnostics/CallStack.h"

#include <exception>

namespace QvxDiagnostics {

namespace {

std::string frameText(const StackFrame& frame) {
    return (frame.module.empty() ? "<no module>" : frame.module) + ": " +
           (frame.symbol.empty() ? "<no symbol>" : frame.symbol) + " + " + std::to_string(frame.offset) + " bytes";
}

} // namespace

std::string stackDump(StackSource source) {
    try {
        std::string text;
        for (const StackFrame& frame : source()) {
            text += (text.empty() ? "" : "\n") + frameText(frame);
        }
        return text;
    } catch (const std::exception& exception) {
        return std::string("Failed to get stack dump!") + exception.what();
    } catch (...) {
        return "Failed to get stack dump, unknown exception occurred";
    }
}

} // namespace QvxDiagnostics
