#pragma once

#include "client/CQVXAdminClass.h"
#include "protocol/estate/Printer.h"

#include <vector>

namespace regions {

// The printers or queues of the client's latest list, in reverse of the server's order. Throws what nextPrinterRecord
// throws for a truncated list.
std::vector<protocol::PrinterRecord> takePrinterRecords(client::CQVXAdminClass& client);

} // namespace regions
