#include "queues/QueueRegionNode.h"

#include "client/CQVXAdminClass.h"
#include "queues/AddQueueDlg.h"
#include "queues/QueuesRootNode.h"
#include "regions/PrinterRecords.h"

#include <array>
#include <utility>

namespace queues {

QueueRegionNode::QueueRegionNode(platform::Platform& platform, protocol::RegionRecord record, QueueMode mode)
    : CBaseNodeItem(platform, regions::printersAndQueues, std::move(record)), mode_(mode) {}

std::shared_ptr<regions::RegionNode> QueueRegionNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<QueueRegionNode>(platform(), std::move(record), mode_);
}

std::vector<console::ChildKind> QueueRegionNode::childKinds() {
    return {regionsBelow(), childrenOf<protocol::PrinterRecord>(
                                queues_, [this](auto& records) { return listQueues(records); }, mode_)};
}

bool QueueRegionNode::listQueues(std::vector<protocol::PrinterRecord>& records) const {
    client::CQVXAdminClass client;
    std::int16_t count = 0;
    const bool answered = mode_ == QueueMode::followPrint ? client.getFollowQueuesInRegion(regionId(), count)
                                                          : client.getQueuesInRegion(regionId(), count);
    if (answered) {
        records = regions::takePrinterRecords(client);
    }
    return answered;
}

std::span<const console::Column> QueueRegionNode::columns() const {
    static constexpr std::array ofRegions{regions::regionNameColumn};
    static constexpr std::array ofQueues{console::Column{u"Queue"}, console::Column{u"Jobs"},
                                         console::Column{u"Region"}, console::Column{u"Location"},
                                         console::Column{u"Status"}};
    if (queues_.empty() && !regions().empty()) {
        return ofRegions;
    }
    return ofQueues;
}

std::span<const console::NodeCommand<QueueRegionNode>> QueueRegionNode::commands() const {
    using Command = console::NodeCommand<QueueRegionNode>;
    static constexpr std::array table{
        Command{.entry = regions::createRegionEntry, .run = &QueueRegionNode::createRegion},
        Command{.entry = console::separator},
        Command{.entry{u"Delete Region", u"To Delete a Region", 302}, .run = &QueueRegionNode::deleteRegion},
        Command{.entry = console::separator},
        Command{.entry{u"Region Rules", u"For region rules", 261}, .run = &QueueRegionNode::regionRules},
        Command{.entry = console::separator},
        Command{.entry{u"Follow Printer Queue", u"To add new follow printer queue", 103},
                .run = &QueueRegionNode::addFollowQueue,
                .offered = &QueueRegionNode::isOfFollowPrint}};
    return table;
}

std::span<const console::VerbChoice> QueueRegionNode::verbs() const {
    using console::Verb;
    static constexpr std::array choices{
        console::VerbChoice{Verb::refresh, true}, console::VerbChoice{Verb::rename, true},
        console::VerbChoice{Verb::deleteItem, false}, console::VerbChoice{Verb::copy, false}};
    return choices;
}

console::Result QueueRegionNode::addFollowQueue(console::CommandOrigin /*origin*/) {
    if (regionId() == 0) {
        messageBox(u"New Region Id Not Found", u"Warning", platform::boxStyle::iconWarning);
        return console::Result::notDone;
    }
    AddQueueDlg dialog(platform(), {.mode = QueueMode::followPrint, .printerId = {}, .regionId = regionId()});
    const bool made = runModal(dialog) == forms::idOk;
    if (console() != nullptr) {
        QueuesRootNode::refreshInstance(*console());
    }
    selectAndPress(row(), {platform::Key::f5});
    return made ? console::Result::ok : console::Result::notDone;
}

std::vector<console::NodeBase*> QueueRegionNode::rows() const {
    return pointersTo(regions(), queues_);
}

} // namespace queues
