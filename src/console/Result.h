#pragma once

#include <cstdint>

namespace console {

// The result of an operation, for the console; the numbers are the platform's.
enum class Result : std::uint32_t {
    ok = 0,                         // S_OK
    notDone = 1,                    // S_FALSE: nothing to do, or refused without a failure
    notImplemented = 0x80004001,    // E_NOTIMPL
    badPointer = 0x80004003,        // E_POINTER
    failed = 0x80004005,            // E_FAIL
    unexpected = 0x8000FFFF,        // E_UNEXPECTED
    outOfMemory = 0x8007000E,       // E_OUTOFMEMORY
    badClipboardFormat = 0x80040064 // DV_E_CLIPFORMAT
};

// Like the platform's SUCCEEDED: "not done" counts as success.
constexpr bool succeeded(Result result) {
    return (static_cast<std::uint32_t>(result) & 0x80000000U) == 0;
}

} // namespace console
