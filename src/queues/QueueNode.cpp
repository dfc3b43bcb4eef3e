#include "queues/QueueNode.h"

#include "client/CQVXAdminClass.h"
#include "queues/DialogStatus.h"
#include "queues/PrintingStatus.h"
#include "queues/QueuePropertiesDlg.h"

#include <array>

namespace queues {

QueueNode::QueueNode(platform::Platform& platform, protocol::PrinterRecord record, QueueMode mode)
    : CBaseNodeItem(platform),
      mode_(mode),
      id_(std::move(record.id)),
      jobs_(record.jobs),
      jobsText_(wire::toWide(std::to_string(record.jobs))),
      printingStatus_(record.printingStatus) {
    setDisplayName(std::move(record.name));
}

const char16_t* QueueNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return jobsText_.c_str();
    case 2:
        return printingStatusText(printingStatus_);
    default:
        return u"";
    }
}

std::optional<std::int64_t> QueueNode::sortValue(std::int32_t column) const {
    return column == 1 ? std::optional<std::int64_t>(jobs_) : std::nullopt;
}

std::optional<console::RowState> QueueNode::rowState() const {
    return stateOf(noPhysicalStatus, printingStatus_);
}

std::span<const console::NodeCommand<QueueNode>> QueueNode::commands() const {
    using Command = console::NodeCommand<QueueNode>;
    static constexpr std::array table{
        Command{.entry{u"Edit Queue/Queue Properties", u"To edit queue properties", 230},
                .run = &QueueNode::editQueue,
                .offered = &QueueNode::isOfPrinters},
        Command{.entry{u"Delete Queue", u"To delete queue", 294},
                .run = &QueueNode::deleteQueue,
                .offered = &QueueNode::isOfPrinters},
        Command{.entry{u"Edit Follow Print Queue Properties", u"To edit follow print queue properties", 230},
                .run = &QueueNode::editQueue,
                .offered = &QueueNode::isOfFollowPrint},
        Command{.entry{u"Delete Follow Print Queue", u"To delete follow print queue", 294},
                .run = &QueueNode::deleteQueue,
                .offered = &QueueNode::isOfFollowPrint},
        Command{.entry{u"Queue Properties NEW", u"To Printer Properties NEW", 358}, .offered = &QueueNode::never}};
    return table;
}

std::span<const console::VerbChoice> QueueNode::verbs() const {
    using console::Verb;
    static constexpr std::array choices{console::VerbChoice{Verb::refresh, true},
                                        console::VerbChoice{Verb::deleteItem, false},
                                        console::VerbChoice{Verb::copy, false}, console::VerbChoice{Verb::cut, false},
                                        console::VerbChoice{Verb::rename, false}};
    return choices;
}

console::Result QueueNode::editQueue(console::CommandOrigin origin) {
    QueuePropertiesDlg dialog(platform(), mode_, id_, displayName());
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

// The Delete key removes the row at once, whether or not the server carried out the command; the two refreshes then
// show the actual state. This order must stay.
console::Result QueueNode::deleteQueue(console::CommandOrigin /*origin*/) {
    if (!confirm(u"Are you sure you want to delete the selected queue?")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    const bool sent = client.deleteQueue(id_);
    press({platform::Key::deleteKey, platform::Key::f5, platform::Key::f5});
    return sent ? console::Result::ok : console::Result::notDone;
}

} // namespace queues
