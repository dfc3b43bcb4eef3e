#pragma once

#include "protocol/estate/Printer.h"

#include <string>

namespace bench {

// A typical printer of a large estate: every field set, texts of ordinary length.
protocol::PrinterRecord samplePrinter();

// The same printer encoded by protobuf.
std::string sampleInProtobuf();

} // namespace bench
