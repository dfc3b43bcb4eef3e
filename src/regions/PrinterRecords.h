#pragma once

#include "client/CQVXAdminClass.h"
#include "protocol/estate/Printer.h"

#include <vector>

namespace regions {

// The printers or queues that the client has listed last, last of the server's list first. Throws what
// nextPrinterRecord throws for a list that broke off.
std::vector<protocol::PrinterRecord> takePrinterRecords(client::CQVXAdminClass& client);

} // namespace regions
