#pragma once

#include "fuzz/PeerSocket.h"

namespace fuzz {

// The peer that every connection of this program leads to: it and its clock stand in the place of those of the
// platform.
[[nodiscard]] PeerSocket& peer();

} // namespace fuzz
