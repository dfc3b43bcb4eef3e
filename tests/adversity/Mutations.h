#pragma once

#include "tests/support/Bytes.h"

#include <functional>
#include <string>

namespace adversity {

using support::Bytes;
using support::operator+;

// Receives bytes as a hostile or broken connection would change them, and a description ("bit 3 of byte 12 flipped").
using MutationAction = std::function<void(const Bytes& mutated, const std::string& what)>;

// Every bit flipped, one at a time.
void forEachFlippedBit(const Bytes& bytes, const MutationAction& action);

// Every byte replaced, one at a time: by the ends of its range, by its neighbours and by its complement.
void forEachReplacedByte(const Bytes& bytes, const MutationAction& action);

// Only the first bytes, from none to all but one.
void forEachTruncation(const Bytes& bytes, const MutationAction& action);

// Without the first bytes, from one to all but one.
void forEachMissingBeginning(const Bytes& bytes, const MutationAction& action);

// All of the above.
void forEachMutation(const Bytes& bytes, const MutationAction& action);

} // namespace adversity
