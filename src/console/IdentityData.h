#pragma once

#include "console/CSnapInItem.h"
#include "console/NodeIdentity.h"

#include <cstdint>
#include <vector>

namespace console {

// Appends a class's identity to the stream in the form that the console asks for; Result::badClipboardFormat for any
// other form.
Result appendIdentity(const NodeIdentity& identity, ClipboardFormat format, std::vector<std::uint8_t>& stream);

} // namespace console
