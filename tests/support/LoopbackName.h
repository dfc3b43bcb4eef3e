#pragma once

namespace support {

// A name of this machine that the resolver has to be asked for, and that it knows everywhere: a bare machine has no
// /etc/hosts, and so no "localhost".
inline constexpr const char* loopbackName = "::ffff:127.0.0.1";

} // namespace support
