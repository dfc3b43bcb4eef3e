#pragma once

#include "server/store/Query.h"

#include <string>

namespace server::test {

// What a console does with a credential: seals its units under a public key.
[[nodiscard]] Bytes seal(const Bytes& publicDer, const std::u16string& text);

} // namespace server::test
