#pragma once

#include "client/CQVXAdminClass.h"

#include <span>

namespace fuzz {

// One use of a client that reads something from the server, with whatever comes.
struct Operation {
    std::uint16_t opcode = 0;
    void (*run)(client::CQVXAdminClass&) = nullptr;
};

// New ones are added at the end, so that inputs that were kept stay what they were.
[[nodiscard]] std::span<const Operation> operations();

} // namespace fuzz
