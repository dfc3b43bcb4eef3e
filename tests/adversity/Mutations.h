#pragma once

#include "tests/support/Bytes.h"

#include <functional>
#include <string>

namespace adversity {

using support::Bytes;
using support::operator+;

// What a hostile or broken line makes of a text of bytes, and words for it ("bit 3 of byte 12 flipped").
using MutationAction = std::function<void(const Bytes& mutated, const std::string& what)>;

// Every bit turned over, one at a time.
void forEachFlippedBit(const Bytes& bytes, const MutationAction& action);

// Every byte replaced, one at a time: by the ends of its range, by its neighbours and by its complement.
void forEachReplacedByte(const Bytes& bytes, const MutationAction& action);

// Only the first bytes are there, from none at all to all but one.
void forEachTruncation(const Bytes& bytes, const MutationAction& action);

// The first bytes are missing, from one to all but one.
void forEachMissingBeginning(const Bytes& bytes, const MutationAction& action);

// All of the above.
void forEachMutation(const Bytes& bytes, const MutationAction& action);

} // namespace adversity
