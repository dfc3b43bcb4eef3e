#include "localprinters/LocalPrinterQueueNode.h"

#include "localprinters/LocalPrinterPropertiesDlg.h"
#include "printers/SnmpStatus.h"
#include "queues/DialogStatus.h"
#include "queues/PrintingStatus.h"

#include <array>
#include <utility>

namespace localprinters {

LocalPrinterQueueNode::LocalPrinterQueueNode(platform::Platform& platform, protocol::PrinterRecord record)
    : CBaseNodeItem(platform),
      id_(std::move(record.id)),
      modelName_(std::move(record.modelName)),
      location_(std::move(record.location)),
      jobs_(record.jobs),
      jobsText_(wire::toWide(std::to_string(record.jobs))),
      snmpStatus_(record.snmpStatus),
      printingStatus_(record.printingStatus) {
    setDisplayName(std::move(record.name));
}

const char16_t* LocalPrinterQueueNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return queues::printingStatusText(printingStatus_);
    case 2:
        return jobsText_.c_str();
    case 3:
        return location_.c_str();
    case 4:
        return printers::snmpStatusText(snmpStatus_);
    case 5:
        return modelName_.c_str();
    default:
        return u"";
    }
}

std::optional<std::int64_t> LocalPrinterQueueNode::sortValue(std::int32_t column) const {
    return column == 2 ? std::optional<std::int64_t>(jobs_) : std::nullopt;
}

std::optional<console::RowState> LocalPrinterQueueNode::rowState() const {
    return queues::stateOf(snmpStatus_, printingStatus_);
}

std::span<const console::NodeCommand<LocalPrinterQueueNode>> LocalPrinterQueueNode::commands() const {
    static constexpr std::array table{console::NodeCommand<LocalPrinterQueueNode>{
        .entry{u"Edit Queue/Queue Properties", u"To edit queue properties", 230},
        .run = &LocalPrinterQueueNode::editPrinter}};
    return table;
}

console::Result LocalPrinterQueueNode::editPrinter(console::CommandOrigin origin) {
    LocalPrinterPropertiesDlg dialog(platform(), id_);
    if (runModal(dialog) != forms::idOk) {
        return console::Result::notDone;
    }
    if (origin == console::CommandOrigin::result) {
        press({platform::Key::tab, platform::Key::f5});
    } else {
        selectAndPress(parentRow(), {platform::Key::f5});
    }
    return console::Result::ok;
}

} // namespace localprinters
