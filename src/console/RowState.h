#pragma once

#include "wire/Text.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace console {

// How much the state of a thing calls for somebody to look after it.
enum class Severity : std::uint8_t { none, warning, error };

// The state of what a row stands for, in the words that dialogs have for it. Its columns may not have them: a console
// shows it beside them.
struct RowState {
    Severity severity = Severity::none;
    std::array<std::u16string_view, 2> words; // what it is, and what it does; empty where there is nothing to say
};

// "Error: No Paper, Printing".
[[nodiscard]] wire::WideString describe(const RowState& state);

} // namespace console
