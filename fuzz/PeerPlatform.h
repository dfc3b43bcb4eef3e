#pragma once

#include "fuzz/PeerSocket.h"

namespace fuzz {

// The peer of every connection of this program: it and its clock replace the socket and clock of the platform.
[[nodiscard]] PeerSocket& peer();

} // namespace fuzz
