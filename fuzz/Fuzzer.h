#pragma once

#include <cstddef>
#include <cstdint>

// What each fuzzer defines: one run on bytes that anybody could have sent. It ends by itself for every input; what it
// must not do ends the program. The result is always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
