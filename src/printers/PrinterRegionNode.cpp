#include "printers/PrinterRegionNode.h"

#include "client/CQVXAdminClass.h"
#include "console/IConsoleNameSpace.h"
#include "console/IResultData.h"
#include "queues/QueuesRootNode.h"
#include "regions/CreateRegionDlg.h"
#include "regions/NodePointers.h"
#include "regions/RegionDeletion.h"
#include "regions/RegionNodes.h"

namespace printers {
namespace {

constexpr std::int32_t createRegionCommand = 247;
constexpr std::int32_t deleteRegionCommand = 302;

} // namespace

PrinterRegionNode::PrinterRegionNode(platform::Platform& platform, protocol::RegionRecord record)
    : CBaseNodeItem(platform), regionId_(record.id) {
    setDisplayName(std::move(record.name));
}

std::string PrinterRegionNode::refreshKey() const {
    return regions::regionKey(regionId_);
}

console::Result PrinterRegionNode::OnExpand(console::ExpandCode code, console::IConsole& console,
                                            console::ScopeId scopeId) {
    if (!beginExpand(code, console, scopeId)) {
        return console::Result::ok;
    }
    if (!readChildren(CarryOver::resultRow)) {
        return console::Result::notDone;
    }
    for (const auto& region : regions_) {
        insertChild(console, *region);
    }
    for (const auto& printer : printers_) {
        insertChild(console, *printer);
    }
    return console::Result::ok;
}

console::Result PrinterRegionNode::OnShow(console::IConsole& console, bool show, int again) {
    readChildren(CarryOver::resultRowAndScopeId);
    if (columns().empty() && (show || again == 1)) {
        console.resultData().DeleteAllRsltItems(); // what stood here may have gone
    }
    return CBaseNodeItem::OnShow(console, show, again);
}

bool PrinterRegionNode::readChildren(CarryOver what) {
    client::CQVXAdminClass client;
    std::int16_t count = 0;
    if (!client.getPrintersInRegion(regionId_, count)) {
        return false;
    }
    console::NodeArray<PrinterNode> printers;
    printers.reserve(client.printerRecords().size());
    protocol::PrinterRecord record;
    while (client.nextPrinterRecord(record)) {
        printers.push_back(std::make_shared<PrinterNode>(platform(), std::move(record)));
        printers.back()->setParent(*this);
    }
    std::vector<protocol::RegionRecord> below;
    if (!regions::readRegionsBelow(client, protocol::RegionKind::printersAndQueues, regionId_, below)) {
        return false;
    }
    replaceChildren(printers_, std::move(printers), what);
    replaceChildren(regions_, regions::makeRegionNodes<PrinterRegionNode>(platform(), *this, std::move(below)), what);
    return true;
}

// The columns of printers stand in the place of those of regions where a region holds both.
std::span<const console::Column> PrinterRegionNode::columns() const {
    static constexpr std::array ofRegions{console::Column{u"Region Name", 2}};
    static constexpr std::array ofPrinters{console::Column{u"Printer Name", 2},   console::Column{u"Model", 4},
                                           console::Column{u"Location", 3},       console::Column{u"SNMP Status", 1.5},
                                           console::Column{u"Printer Status", 0}, console::Column{u"Jobs In Queue", 0}};
    if (!printers_.empty()) {
        return ofPrinters;
    }
    return regions_.empty() ? std::span<const console::Column>() : ofRegions;
}

std::span<const console::MenuEntry> PrinterRegionNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Create region", u"To create a new region", createRegionCommand}, console::separator,
        console::MenuEntry{u"Delete region", u"To delete region", deleteRegionCommand}};
    return entries;
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
    return regions::nodePointers(regions_, printers_);
}

console::Result PrinterRegionNode::runCommand(std::int32_t commandId, console::CommandOrigin origin) {
    if (commandId == createRegionCommand) {
        return createRegion(origin);
    }
    if (commandId == deleteRegionCommand) {
        return deleteRegion();
    }
    return console::Result::notDone;
}

console::Result PrinterRegionNode::createRegion(console::CommandOrigin origin) {
    regions::CreateRegionDlg dialog(platform(), regionId_, regions::CreateRegionDlg::Mode::printerTree);
    if (runModal(dialog) != forms::idOk) {
        return console::Result::notDone;
    }
    if (origin == console::CommandOrigin::result) {
        press({platform::Key::tab, platform::Key::tab});
    } else if (console() == nullptr) {
        return console::Result::ok;
    } else if (dialog.newRegionId != 0) {
        addRegion(dialog.newRegionId, dialog.name.text());
    } else {
        console()->SelectScopeItem(row());
        PressRefreshKey();
    }
    return console::Result::ok;
}

void PrinterRegionNode::addRegion(std::int32_t newRegionId, const wire::WideString& name) {
    const auto region = std::make_shared<PrinterRegionNode>(
        platform(), protocol::RegionRecord{.name = name, .id = newRegionId, .parentId = regionId_});
    regions_.push_back(region);
    insertChild(*console(), *region);
    console()->SelectScopeItem(region->scopeFields().ID);
}

console::Result PrinterRegionNode::deleteRegion() {
    if (!confirm(regions::deleteRegionQuestion)) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    const auto contents = regions::readRegionContents(client, regionId_);
    if (contents == regions::RegionContents::something) {
        messageBox(regions::regionNotEmptyText, u"Information", platform::boxStyle::iconInformation);
    }
    if (contents != regions::RegionContents::empty ||
        !client.deleteRegion(protocol::RegionKind::printersAndQueues, regionId_)) {
        return console::Result::notDone;
    }
    if (console() != nullptr) {
        console()->nameSpace().DeleteItem(row(), true);
        if (resultFields().itemID != 0) {
            console()->resultData().DeleteItem(resultFields().itemID, 0);
        }
        console()->SelectScopeItem(parentRow());
        PressRefreshKey();
    }
    return console::Result::ok;
}

// The new text stands at once and goes again when the command can't be sent.
console::Result PrinterRegionNode::OnRename(console::IConsole& console, const wire::WideString& newName) {
    console.nameSpace().SetItem(row(), newName);
    client::CQVXAdminClass client;
    if (!client.renameRegion(protocol::RegionKind::printersAndQueues, regionId_, newName)) {
        console.nameSpace().SetItem(row(), displayName());
        return console::Result::notDone;
    }
    console.SelectScopeItem(parentRow());
    PressRefreshKey();
    return console::Result::ok;
}

// Whether a region may stand below another, itself included, is the server's to decide. A move presses F5 twice, and
// twice again once the queues have been refreshed; this must stay.
console::Result PrinterRegionNode::OnPaste(console::CSnapInItem& source) {
    client::CQVXAdminClass client;
    bool moved = false;
    if (const auto* printer = dynamic_cast<const PrinterNode*>(&source)) {
        moved = client.movePrinter(printer->id(), regionId_);
    } else if (const auto* region = dynamic_cast<const PrinterRegionNode*>(&source)) {
        moved = client.moveRegion(protocol::RegionKind::printersAndQueues, region->regionId(), regionId_);
    } else {
        return console::Result::notDone;
    }
    if (moved) {
        PressRefreshKey();
        PressRefreshKey();
    }
    if (console() != nullptr) {
        queues::QueuesRootNode::refreshInstance(*console());
    }
    PressRefreshKey();
    PressRefreshKey();
    return moved ? console::Result::ok : console::Result::notDone;
}

console::Result PrinterRegionNode::OnQueryPaste(const console::CSnapInItem& source) {
    const bool accepted = source.className() == "class PrinterNode" || source.className() == "class PrinterRegionNode";
    return accepted ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
