#pragma once

#include <cstddef>
#include <cstdint>

// Defined by each fuzzer: one run on bytes that anybody could have sent. It terminates for every input; a violated
// expectation aborts the program. The result is always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
