#pragma once

#include "wire/Text.h"

#include <span>
#include <string>
#include <vector>

namespace ctl {

// Texts as they stand in a line for a person: with control characters visible, in UTF-8.
std::string shown(wire::WideStringView text);

// "A", "B", "C", or "A", ..., "T" and 12 more. What occurs several times has its number behind it: "B#1", "B#2".
std::string listed(std::span<const wire::WideString> texts);

// The text itself. Throws Failure (usage) when it is longer than the 32,767 characters that a command can carry.
wire::WideString bearable(wire::WideString text);

// Equal without regard to case.
bool sameWord(wire::WideStringView a, wire::WideStringView b);

// The place of the one text that is meant: the one that is equal, else the only one that is without regard to case,
// else for "North#2" the second of those called so and for "#2" the second of all. texts.size() when there is none;
// throws Failure when there are several, where `what` says what they are.
std::size_t placeOf(wire::WideStringView name, std::span<const wire::WideString> texts, const std::string& what);

} // namespace ctl
