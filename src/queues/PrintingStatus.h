#pragma once

#include <cstdint>

namespace queues {

// The word for a printing status as the tree shows it. The tree compares the byte with the small numbers 0 to 4 and not
// with the ASCII digits that dialogs compare it with; so a digit gives the empty text. The difference must stay.
const char16_t* printingStatusText(std::uint8_t status);

} // namespace queues
