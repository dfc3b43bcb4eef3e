#include "queues/QueueNode.h"

#include "client/CQVXAdminClass.h"
#include "queues/PrintingStatus.h"

namespace queues {
namespace {

constexpr std::int32_t deleteQueueCommand = 294;

constexpr std::array queueMenu{console::MenuEntry{u"Delete Queue", u"To delete queue", deleteQueueCommand}};
constexpr std::array followPrintMenu{
    console::MenuEntry{u"Delete Follow Print Queue", u"To delete follow print queue", deleteQueueCommand}};

} // namespace

QueueNode::QueueNode(platform::Platform& platform, protocol::PrinterRecord record, QueueMode mode)
    : CBaseNodeItem(platform),
      mode_(mode),
      id_(std::move(record.id)),
      jobs_(wire::toWide(std::to_string(record.jobs))),
      printingStatus_(record.printingStatus) {
    setDisplayName(std::move(record.name));
}

const char16_t* QueueNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return jobs_.c_str();
    case 2:
        return printingStatusText(printingStatus_);
    default:
        return u"";
    }
}

std::span<const console::MenuEntry> QueueNode::menu() const {
    switch (mode_) {
    case QueueMode::queue:
        return queueMenu;
    case QueueMode::followPrint:
        return followPrintMenu;
    }
    return {};
}

std::span<const console::VerbChoice> QueueNode::verbs() const {
    using console::Verb;
    static constexpr std::array choices{console::VerbChoice{Verb::refresh, true},
                                        console::VerbChoice{Verb::deleteItem, false},
                                        console::VerbChoice{Verb::copy, false}, console::VerbChoice{Verb::cut, false},
                                        console::VerbChoice{Verb::rename, false}};
    return choices;
}

console::Result QueueNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    return commandId == deleteQueueCommand ? deleteQueue() : console::Result::notDone;
}

// The Delete key takes the row away at once, whatever the server made of the command; the two refreshes then show what
// stands. This order must stay.
console::Result QueueNode::deleteQueue() {
    if (!confirm(u"Are you sure you want to delete the selected queue?")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    const bool sent = client.deleteQueue(id_);
    press({platform::Key::deleteKey, platform::Key::f5, platform::Key::f5});
    return sent ? console::Result::ok : console::Result::notDone;
}

} // namespace queues
