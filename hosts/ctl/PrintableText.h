#pragma once

#include "wire/Text.h"

#include <span>
#include <string>
#include <vector>

namespace ctl {

// A text for a line of output: with control characters made visible, in UTF-8.
std::string shown(wire::WideStringView text);

// "A", "B", "C", or "A", ..., "T" and 12 more. Texts that occur several times get a number: "B#1", "B#2".
std::string listed(std::span<const wire::WideString> texts);

// The text itself. Throws Failure (usage) when it is longer than the 32,767 characters that a command can carry.
wire::WideString bearable(wire::WideString text);

// Equal without regard to case.
bool sameWord(wire::WideStringView a, wire::WideStringView b);

// The place of the text that a name refers to: the one that is equal, or else the only one that is equal without regard
// to case, or else for "North#2" the second of that name and for "#2" the second of all. texts.size() when there is
// none; throws Failure when there are several; `what` says what they are.
std::size_t placeOf(wire::WideStringView name, std::span<const wire::WideString> texts, const std::string& what);

} // namespace ctl
