#include "printers/PrinterRegionNode.h"

#include "printers/PrinterPreferencesDlg.h"
#include "queues/QueuesRootNode.h"
#include "regions/PrinterRecords.h"

#include <array>
#include <utility>

namespace printers {

PrinterRegionNode::PrinterRegionNode(platform::Platform& platform, protocol::RegionRecord record)
    : CBaseNodeItem(platform, regions::printersAndQueues, std::move(record)) {}

std::shared_ptr<regions::RegionNode> PrinterRegionNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<PrinterRegionNode>(platform(), std::move(record));
}

void PrinterRegionNode::refreshOthers() {
    if (console() != nullptr) {
        queues::QueuesRootNode::refreshInstance(*console());
    }
}

// The printers are read before the regions, but shown below them.
std::vector<console::ChildKind> PrinterRegionNode::childKinds() {
    auto printers = childrenOf<protocol::PrinterRecord>(printers_, [this](auto& records) {
        client::CQVXAdminClass client;
        std::int16_t count = 0;
        if (!client.getPrintersInRegion(regionId(), count)) {
            return false;
        }
        records = regions::takePrinterRecords(client);
        return true;
    });
    printers.readFirst = true;
    return {regionsBelow(), std::move(printers)};
}

// If a region contains both, the columns of printers replace those of regions.
std::span<const console::Column> PrinterRegionNode::columns() const {
    static constexpr std::array ofRegions{regions::regionNameColumn};
    static constexpr std::array ofPrinters{console::Column{u"Printer Name", 2},   console::Column{u"Model", 4},
                                           console::Column{u"Location", 3},       console::Column{u"SNMP Status", 1.5},
                                           console::Column{u"Printer Status", 0}, console::Column{u"Jobs In Queue", 0}};
    if (!printers_.empty()) {
        return ofPrinters;
    }
    return regions().empty() ? std::span<const console::Column>() : ofRegions;
}

std::span<const console::NodeCommand<PrinterRegionNode>> PrinterRegionNode::commands() const {
    using Command = console::NodeCommand<PrinterRegionNode>;
    static constexpr std::array table{
        Command{.entry = regions::createRegionEntry, .run = &PrinterRegionNode::createRegion},
        Command{.entry = console::separator},
        Command{.entry{u"Add New Printer", u"To add new printer", 103}, .run = &PrinterRegionNode::addPrinter},
        Command{.entry = console::separator},
        Command{.entry{u"Delete region", u"To delete region", 302}, .run = &PrinterRegionNode::deleteRegion},
        Command{.entry = console::separator},
        Command{.entry{u"Region Rules", u"For region rules", 261}, .run = &PrinterRegionNode::regionRules}};
    return table;
}

std::span<const console::VerbChoice> PrinterRegionNode::verbs() const {
    using console::Verb;
    static constexpr std::array choices{
        console::VerbChoice{Verb::refresh, true}, console::VerbChoice{Verb::cut, true},
        console::VerbChoice{Verb::copy, false},   console::VerbChoice{Verb::deleteItem, false},
        console::VerbChoice{Verb::rename, true},  console::VerbChoice{Verb::paste, true}};
    return choices;
}

std::vector<console::NodeBase*> PrinterRegionNode::rows() const {
    return pointersTo(regions(), printers_);
}

console::Result PrinterRegionNode::addPrinter(console::CommandOrigin /*origin*/) {
    if (regionId() == 0) {
        messageBox(u"New Region Id Not Found", u"Warning", platform::boxStyle::iconWarning);
        return console::Result::notDone;
    }
    PrinterPreferencesDlg dialog(
        platform(),
        {.mode = PreferencesMode::newPrinter, .regionId = regionId(), .regionName = displayName(), .id = {}});
    const bool confirmed = runModal(dialog) == forms::idOk;
    refreshOthers();
    selectAndPress(row(), {platform::Key::f5});
    return confirmed ? console::Result::ok : console::Result::notDone;
}

bool PrinterRegionNode::movePrinterHere(const PrinterNode& printer) const {
    client::CQVXAdminClass client;
    return client.movePrinter(printer.id(), regionId());
}

console::Result PrinterRegionNode::OnPaste(console::CSnapInItem& source) {
    if (const auto* printer = dynamic_cast<const PrinterNode*>(&source)) {
        return finishMove(movePrinterHere(*printer));
    }
    const auto* region = dynamic_cast<const PrinterRegionNode*>(&source);
    return region != nullptr ? finishMove(moveHere(*region)) : console::Result::notDone;
}

console::Result PrinterRegionNode::OnQueryPaste(const console::CSnapInItem& source) {
    const bool accepted = source.className() == "class PrinterNode" || source.className() == "class PrinterRegionNode";
    return accepted ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
