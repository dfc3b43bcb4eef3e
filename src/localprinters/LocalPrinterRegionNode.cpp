#include "localprinters/LocalPrinterRegionNode.h"

#include "client/CQVXAdminClass.h"
#include "regions/PrinterRecords.h"

#include <array>
#include <utility>

namespace localprinters {

LocalPrinterRegionNode::LocalPrinterRegionNode(platform::Platform& platform, protocol::RegionRecord record)
    : CBaseNodeItem(platform, regions::localPrinters, std::move(record)) {}

std::shared_ptr<regions::RegionNode> LocalPrinterRegionNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<LocalPrinterRegionNode>(platform(), std::move(record));
}

std::vector<console::ChildKind> LocalPrinterRegionNode::childKinds() {
    const auto list = [this](std::vector<protocol::PrinterRecord>& records) {
        client::CQVXAdminClass client;
        std::int16_t count = 0;
        if (!client.getLocalPrintersInRegion(regionId(), count)) {
            return false;
        }
        records = regions::takePrinterRecords(client);
        return true;
    };
    return {regionsBelow(), childrenOf<protocol::PrinterRecord>(printers_, list)};
}

// If a region contains both, the columns of printers replace those of regions.
std::span<const console::Column> LocalPrinterRegionNode::columns() const {
    static constexpr std::array ofRegions{regions::regionNameColumn};
    static constexpr std::array ofPrinters{console::Column{u"Printer Name", 3}, console::Column{u"Printer Status"},
                                           console::Column{u"Jobs In Queue"},   console::Column{u"Location", 4},
                                           console::Column{u"SNMP Status"},     console::Column{u"Model", 4}};
    if (!printers_.empty()) {
        return ofPrinters;
    }
    return regions().empty() ? std::span<const console::Column>() : ofRegions;
}

std::span<const console::NodeCommand<LocalPrinterRegionNode>> LocalPrinterRegionNode::commands() const {
    using Command = console::NodeCommand<LocalPrinterRegionNode>;
    static constexpr std::array table{
        Command{.entry = regions::createRegionEntry, .run = &LocalPrinterRegionNode::createRegion},
        Command{.entry = deleteLocalRegionEntry, .run = &LocalPrinterRegionNode::deleteRegion}};
    return table;
}

std::vector<console::NodeBase*> LocalPrinterRegionNode::rows() const {
    return pointersTo(regions(), printers_);
}

} // namespace localprinters
