#pragma once

#include "forms/CheckBox.h"
#include "forms/Label.h"
#include "protocol/estate/Printer.h"

namespace queues {

// What a dialog of a queue shows of its state, and whether users see the queue.
class QueueStatus {
public:
    explicit QueueStatus(forms::Container& container);

    void show(const protocol::PrinterRecord& queue);
    // The byte that says so in a record.
    [[nodiscard]] std::uint8_t invisibleByte() const { return invisible.checked() ? 1 : 0; }

    forms::CheckBox invisible;
    forms::Label physical;
    forms::Label printing;
};

} // namespace queues
