#pragma once

#include <cstdint>

namespace printers {

// The text for a printer's physical status as the tree shows it. The tree compares the byte with the small numbers 0 to
// 9 and not with the ASCII digits that dialogs compare it with; so a digit gives "SNMP status". The difference must
// stay.
const char16_t* snmpStatusText(std::uint8_t status);

} // namespace printers
