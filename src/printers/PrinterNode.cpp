#include "printers/PrinterNode.h"

#include "client/CQVXAdminClass.h"
#include "client/PrinterRecordEdit.h"
#include "printers/PrinterPropertiesDlg.h"
#include "printers/SnmpStatus.h"
#include "queues/AddQueueDlg.h"
#include "queues/DialogStatus.h"
#include "queues/PrintingStatus.h"
#include "queues/QueuesRootNode.h"
#include "regions/PrinterRecords.h"

#include <array>

namespace printers {

PrinterNode::PrinterNode(platform::Platform& platform, protocol::PrinterRecord record)
    : CBaseNodeItem(platform),
      id_(std::move(record.id)),
      regionId_(record.regionId),
      modelName_(std::move(record.modelName)),
      location_(std::move(record.location)),
      jobs_(record.jobs),
      jobsText_(wire::toWide(std::to_string(record.jobs))),
      snmpStatus_(record.snmpStatus),
      printingStatus_(record.printingStatus) {
    setDisplayName(std::move(record.name));
}

const char16_t* PrinterNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return modelName_.c_str();
    case 2:
        return location_.c_str();
    case 3:
        return snmpStatusText(snmpStatus_);
    case 4:
        return queues::printingStatusText(printingStatus_);
    case 5:
        return jobsText_.c_str();
    default:
        return u"";
    }
}

std::optional<std::int64_t> PrinterNode::sortValue(std::int32_t column) const {
    return column == 5 ? std::optional<std::int64_t>(jobs_) : std::nullopt;
}

std::optional<console::RowState> PrinterNode::rowState() const {
    return queues::stateOf(snmpStatus_, printingStatus_);
}

std::vector<console::ChildKind> PrinterNode::childKinds() {
    const auto list = [this](std::vector<protocol::PrinterRecord>& records) {
        client::CQVXAdminClass client;
        std::int16_t count = 0;
        if (!client.getQueuesOfPrinter(id_, count)) {
            return false;
        }
        records = regions::takePrinterRecords(client);
        return true;
    };
    return {childrenOf<protocol::PrinterRecord>(queues_, list, queues::QueueMode::queue)};
}

std::span<const console::Column> PrinterNode::columns() const {
    static constexpr std::array titles{console::Column{u"Queue", 2.5}, console::Column{u"Jobs", 2.5},
                                       console::Column{u"Status", 4}};
    return titles;
}

std::span<const console::NodeCommand<PrinterNode>> PrinterNode::commands() const {
    using Command = console::NodeCommand<PrinterNode>;
    static constexpr std::array table{
        Command{.entry{u"Edit Printer/Printer Properties", u"To edit printer", 249}, .run = &PrinterNode::editPrinter},
        Command{.entry{.text = nullptr, .statusBarText = nullptr, .id = 358}, .run = &PrinterNode::editPrinter},
        Command{.entry{u"Add Queue", u"To Add New queue", 229}, .run = &PrinterNode::addQueue},
        Command{.entry{u"Delete Printer", u"To delete printer", 293}, .run = &PrinterNode::deletePrinter}};
    return table;
}

console::KeySequence PrinterNode::keysAfterCommand(std::int32_t /*commandId*/,
                                                   console::CommandOrigin /*origin*/) const {
    return {platform::Key::f5, platform::Key::f5};
}

std::span<const console::VerbChoice> PrinterNode::verbs() const {
    using console::Verb;
    static constexpr std::array choices{console::VerbChoice{Verb::rename, false},
                                        console::VerbChoice{Verb::deleteItem, false},
                                        console::VerbChoice{Verb::cut, true}, console::VerbChoice{Verb::copy, false},
                                        console::VerbChoice{Verb::paste, true}};
    return choices;
}

std::vector<console::NodeBase*> PrinterNode::rows() const {
    return pointersTo(queues_);
}

console::Result PrinterNode::editPrinter(console::CommandOrigin /*origin*/) {
    PrinterPropertiesDlg dialog(platform(), id_);
    if (runModal(dialog) != forms::idOk) {
        return console::Result::notDone;
    }
    if (console() != nullptr) {
        queues::QueuesRootNode::refreshInstance(*console());
    }
    return console::Result::ok;
}

console::Result PrinterNode::addQueue(console::CommandOrigin origin) {
    queues::AddQueueDlg dialog(platform(), {.mode = queues::QueueMode::queue, .printerId = id_, .regionId = regionId_});
    if (runModal(dialog) != forms::idOk) {
        return console::Result::notDone;
    }
    if (origin == console::CommandOrigin::result) {
        PressTabKey();
    } else {
        selectAndPress(row(), {});
    }
    return console::Result::ok;
}

console::Result PrinterNode::deletePrinter(console::CommandOrigin origin) {
    if (!confirm(u"Are you sure you want to delete the selected printer?")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    if (!client.deletePrinter(id_)) {
        return console::Result::notDone;
    }
    removeFromTree();
    if (origin == console::CommandOrigin::result) {
        removeFromList();
    }
    if (console() != nullptr && parentRow() != 0) {
        queues::QueuesRootNode::refreshInstance(*console());
        selectAndPress(parentRow(), {platform::Key::f5});
    }
    return console::Result::ok;
}

console::Result PrinterNode::OnRename(console::IConsole& console, const wire::WideString& newName) {
    client::PrinterRecordEdit edit(id_, protocol::recordType::loadPrinter);
    edit.setName(newName);
    if (!edit.save()) {
        return console::Result::notDone;
    }
    console.SelectScopeItem(parentRow());
    PressRefreshKey();
    return console::Result::ok;
}

// Only sent by a console that treats the cut of a printer as half of a copy: a move ends with the paste, after which
// nothing is returned to the console. If it is sent all the same, the printer is deleted.
console::Result PrinterNode::OnCutOrMove(console::CSnapInItem&) {
    client::CQVXAdminClass client;
    return client.deletePrinter(id_) ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
