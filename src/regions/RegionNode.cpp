#include "regions/RegionNode.h"

#include "client/CQVXAdminClass.h"
#include "console/IConsoleNameSpace.h"
#include "regions/RegionRulesDlg.h"
#include "regions/RegionsBelow.h"

#include <utility>

namespace regions {

RegionNode::RegionNode(platform::Platform& platform, const console::NodeIdentity& identity, const TreeOfRegions& tree,
                       protocol::RegionRecord record)
    : RegionHolder(platform, identity, tree, record.id) {
    setDisplayName(std::move(record.name));
}

std::string RegionNode::refreshKey() const {
    return regionKey(regionId());
}

void RegionNode::regionCreated(console::CommandOrigin origin, std::int32_t newRegionId, const wire::WideString& name) {
    if (origin == console::CommandOrigin::scope && newRegionId != 0 && console() != nullptr) {
        addRegion({.name = name, .id = newRegionId, .parentId = regionId()});
    } else {
        RegionHolder::regionCreated(origin, newRegionId, name);
    }
}

console::Result RegionNode::deleteRegion(console::CommandOrigin origin) {
    if (!deleteOnServer(tree().notEmptyText)) {
        return console::Result::notDone;
    }
    const bool fromRow = origin == console::CommandOrigin::result;
    if (tree().deletesBothRows || !fromRow) {
        removeFromTree();
    }
    if (tree().deletesBothRows || fromRow) {
        removeFromList();
    }
    selectAndPress(parentRow(), {platform::Key::f5});
    return console::Result::ok;
}

console::Result RegionNode::regionRules(console::CommandOrigin /*origin*/) {
    RegionRulesDlg dialog(platform(), regionId());
    return runModal(dialog) == forms::idOk ? console::Result::ok : console::Result::notDone;
}

// The new text is shown at once and taken back when the command can't be sent.
console::Result RegionNode::OnRename(console::IConsole& console, const wire::WideString& newName) {
    const auto showText = [&](const wire::WideString& text) {
        if (console.nameSpace() != nullptr) {
            console.nameSpace()->SetItem(row(), text);
        }
    };
    showText(newName);
    client::CQVXAdminClass client;
    if (!client.renameRegion(tree().kind, regionId(), newName)) {
        showText(displayName());
        return console::Result::notDone;
    }
    console.SelectScopeItem(parentRow());
    PressRefreshKey();
    return console::Result::ok;
}

} // namespace regions
