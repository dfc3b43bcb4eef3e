#pragma once

#include "client/CQVXAdminClass.h"

#include <span>

namespace fuzz {

// One use of a client that reads something from the server, whatever that answers.
struct Operation {
    std::uint16_t opcode = 0;
    void (*run)(client::CQVXAdminClass&) = nullptr;
};

// Add new ones at the end, so that stored inputs keep their meaning.
[[nodiscard]] std::span<const Operation> operations();

} // namespace fuzz
