#pragma once

#include <string>

namespace QvxDiagnostics {

// The stack of the calling thread as text, one line for each frame: "module: symbol + 12 bytes". Throws nothing: a dump
// that fails reads "Failed to get stack dump!" and why.
[[nodiscard]] std::string stackDump();

} // namespace QvxDiagnostics
