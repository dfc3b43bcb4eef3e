#pragma once

#include "protocol/estate/Printer.h"

#include <string>

namespace bench {

// A printer as an estate has thousands of them: every field set, texts of ordinary length.
protocol::PrinterRecord samplePrinter();

// The same printer in protobuf's own form.
std::string sampleInProtobuf();

} // namespace bench
