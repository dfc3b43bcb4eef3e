#pragma once

#include "client/PrinterRecordEdit.h"
#include "queues/QueueMode.h"

#include <cstdint>
#include <memory>
#include <string>

namespace queues {

// A queue that is to be made: under a printer, or for follow print in a region.
struct NewQueue {
    QueueMode mode = QueueMode::queue;
    std::string printerId{}; // empty for follow print
    std::int32_t regionId = 0;

    // Throws std::runtime_error for a queue without a printer.
    [[nodiscard]] std::unique_ptr<client::PrinterRecordEdit> begin() const {
        namespace type = protocol::recordType;
        return std::make_unique<client::PrinterRecordEdit>(
            regionId, printerId, mode == QueueMode::followPrint ? type::followQueue : type::queue);
    }
};

} // namespace queues
