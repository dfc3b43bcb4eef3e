#include "regions/PrinterRecords.h"

#include <utility>

namespace regions {

std::vector<protocol::PrinterRecord> takePrinterRecords(client::CQVXAdminClass& client) {
    std::vector<protocol::PrinterRecord> records;
    records.reserve(client.printerRecords().size());
    protocol::PrinterRecord record;
    while (client.nextPrinterRecord(record)) {
        records.push_back(std::move(record));
    }
    return records;
}

} // namespace regions
