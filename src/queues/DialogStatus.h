#pragma once

#include "console/RowState.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace queues {

// The words for the states of a printer or a queue as dialogs show them. Dialogs compare the bytes with ASCII digits,
// the tree with small numbers; and they use other words: a 7 is a paper jam here and an open door in the tree. These
// differences must stay.
[[nodiscard]] std::u16string_view physicalStatusWord(std::uint8_t status);
[[nodiscard]] std::u16string_view printingStatusWord(std::uint8_t status);

constexpr std::uint8_t noPhysicalStatus = 0; // of a queue, which is no device

// Both in one, without the words for a byte that means nothing; empty when neither of them means something.
[[nodiscard]] std::optional<console::RowState> stateOf(std::uint8_t physicalStatus, std::uint8_t printingStatus);

} // namespace queues
