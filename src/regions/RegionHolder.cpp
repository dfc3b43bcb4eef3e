#include "regions/RegionHolder.h"

#include "client/CQVXAdminClass.h"
#include "regions/RegionNode.h"
#include "regions/RegionsBelow.h"

#include <utility>

namespace regions {

using platform::Key;

console::ChildKind RegionHolder::regionsBelow() {
    const auto read = [this](console::CarryOver what) {
        client::CQVXAdminClass client;
        std::vector<protocol::RegionRecord> below;
        if (!readRegionsBelow(client, tree_.kind, regionId_, below)) {
            return false;
        }
        console::NodeArray<RegionNode> fresh;
        fresh.reserve(below.size());
        for (auto& record : below) {
            fresh.push_back(makeRegion(std::move(record)));
            fresh.back()->setParent(*this);
        }
        replaceChildren(regions_, std::move(fresh), what);
        return true;
    };
    return {.read = read, .nodes = [this] { return pointersTo(regions_); }};
}

console::Result RegionHolder::createRegion(console::CommandOrigin origin) {
    CreateRegionDlg dialog(platform(), regionId_, tree_.createMode);
    const bool made = runModal(dialog) == forms::idOk;
    if (made || tree_.refreshesAfterCancel) {
        regionCreated(origin, dialog.newRegionId, dialog.name.text());
    }
    return made ? console::Result::ok : console::Result::notDone;
}

void RegionHolder::regionCreated(console::CommandOrigin origin, std::int32_t /*newRegionId*/,
                                 const wire::WideString& /*name*/) {
    if (origin == console::CommandOrigin::result) {
        press(tree_.keysAfterCreateFromRow);
    } else {
        selectAndPress(row(), {Key::f5});
    }
}

void RegionHolder::addRegion(protocol::RegionRecord record) {
    const auto region = makeRegion(std::move(record));
    regions_.push_back(region);
    insertChild(*console(), *region);
    selectAndPress(region->scopeFields().ID, {});
}

bool RegionHolder::deleteOnServer(const char16_t* notEmptyText) const {
    if (!confirm(tree_.deleteQuestion)) {
        return false;
    }
    client::CQVXAdminClass client;
    const auto contents = tree_.readContents(client, regionId_);
    if (contents == RegionContents::something) {
        messageBox(notEmptyText, u"Information", platform::boxStyle::iconInformation);
    }
    return contents == RegionContents::empty && client.deleteRegion(tree_.kind, regionId_);
}

bool RegionHolder::moveHere(const RegionNode& region) const {
    client::CQVXAdminClass client;
    return client.moveRegion(tree_.kind, region.regionId(), regionId_);
}

console::Result RegionHolder::finishMove(bool moved) {
    if (moved) {
        press({Key::f5, Key::f5});
    }
    refreshOthers();
    press({Key::f5, Key::f5});
    return moved ? console::Result::ok : console::Result::notDone;
}

} // namespace regions
