#include "queues/QueueStatus.h"

#include "queues/DialogStatus.h"

namespace queues {

QueueStatus::QueueStatus(forms::Container& container)
    : invisible(container, u"Invisible"),
      physical(container, u"Physical Status"),
      printing(container, u"Printing Status") {}

void QueueStatus::show(const protocol::PrinterRecord& queue) {
    invisible.setChecked(queue.invisible != 0);
    physical.setText(wire::WideString(physicalStatusWord(queue.snmpStatus)));
    printing.setText(wire::WideString(printingStatusWord(queue.printingStatus)));
}

} // namespace queues
