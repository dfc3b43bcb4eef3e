#include "printers/PrinterNode.h"

#include "client/CQVXAdminClass.h"
#include "client/PrinterRecordEdit.h"
#include "console/IConsoleNameSpace.h"
#include "console/IResultData.h"
#include "printers/SnmpStatus.h"
#include "queues/PrintingStatus.h"
#include "queues/QueuesRootNode.h"
#include "regions/NodePointers.h"

#include <array>

namespace printers {
namespace {

constexpr std::int32_t deletePrinterCommand = 293;

} // namespace

PrinterNode::PrinterNode(platform::Platform& platform, protocol::PrinterRecord record)
    : CBaseNodeItem(platform),
      id_(std::move(record.id)),
      modelName_(std::move(record.modelName)),
      location_(std::move(record.location)),
      jobs_(wire::toWide(std::to_string(record.jobs))),
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
        return jobs_.c_str();
    default:
        return u"";
    }
}

console::Result PrinterNode::OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) {
    if (!beginExpand(code, console, scopeId)) {
        return console::Result::ok;
    }
    if (code != console::ExpandCode::refresh) {
        queryId_ = id_;
    }
    client::CQVXAdminClass client;
    std::int16_t count = 0;
    if (!client.getQueuesOfPrinter(queryId_, count)) {
        return console::Result::notDone;
    }
    console::NodeArray<queues::QueueNode> fresh;
    fresh.reserve(client.printerRecords().size());
    protocol::PrinterRecord record;
    while (client.nextPrinterRecord(record)) {
        fresh.push_back(std::make_shared<queues::QueueNode>(platform(), std::move(record), queues::QueueMode::queue));
    }
    replaceChildren(queues_, std::move(fresh));
    for (const auto& queue : queues_) {
        insertChild(console, *queue);
    }
    return console::Result::ok;
}

std::span<const console::Column> PrinterNode::columns() const {
    static constexpr std::array titles{console::Column{u"Queue", 2.5}, console::Column{u"Jobs", 2.5},
                                       console::Column{u"Status", 4}};
    return titles;
}

std::span<const console::MenuEntry> PrinterNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Delete Printer", u"To delete printer", deletePrinterCommand}};
    return entries;
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
    return regions::nodePointers(queues_);
}

console::Result PrinterNode::runCommand(std::int32_t commandId, console::CommandOrigin origin) {
    return commandId == deletePrinterCommand ? deletePrinter(origin) : console::Result::notDone;
}

console::Result PrinterNode::deletePrinter(console::CommandOrigin origin) {
    if (!confirm(u"Are you sure you want to delete the selected printer?")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    if (!client.deletePrinter(id_)) {
        return console::Result::notDone;
    }
    if (console() != nullptr) {
        leaveConsole(origin);
    }
    return console::Result::ok;
}

void PrinterNode::leaveConsole(console::CommandOrigin origin) {
    console()->nameSpace().DeleteItem(row(), true);
    if (origin == console::CommandOrigin::result && resultFields().itemID != 0) {
        console()->resultData().DeleteItem(resultFields().itemID, 0);
    }
    if (parentRow() != 0) {
        queues::QueuesRootNode::refreshInstance(*console());
        console()->SelectScopeItem(parentRow());
        PressRefreshKey();
    }
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

// Comes only from a console that takes the printer's cut for half of a copy: a move is over with the paste, after which
// nothing is handed back to the console. Should it come all the same, the printer goes.
console::Result PrinterNode::OnCutOrMove(console::CSnapInItem&) {
    client::CQVXAdminClass client;
    return client.deletePrinter(id_) ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
