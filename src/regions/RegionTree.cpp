#include "regions/RegionTree.h"

#include "client/CQVXAdminClass.h"
#include "client/ConnectFailed.h"
#include "forms/Questions.h"
#include "regions/RegionsInTree.h"

#include <stdexcept>
#include <utility>
#include <vector>

namespace regions {

namespace {

// In the order of the server, which is by name.
std::vector<protocol::RegionRecord> readAllRegions() {
    client::CQVXAdminClass client;
    if (!client.listRegions(protocol::RegionKind::printersAndQueues)) {
        throw client::ConnectFailed();
    }
    if (std::cmp_less(client.regions().size(), client.announcedRegions())) {
        throw std::runtime_error("failed to get all regions");
    }
    return client.regions();
}

} // namespace

void RegionTree::onInitDialog() {
    for (auto& [record, parent] : inTreeOrder(readAllRegions())) {
        tree.addItem({.text = std::move(record.name), .parameter = record.id, .parent = parent});
    }
}

void RegionTree::onOk() {
    const auto selection = tree.selection();
    if (!selection) {
        forms::refuseBlank(tree, u"Please select a region.", u"Warning", platform::boxStyle::iconInformation);
        return;
    }
    const auto& region = tree.items()[*selection];
    selectedRegionId = static_cast<std::int32_t>(region.parameter);
    selectedRegionName = region.text;
    EndDialog(forms::idOk);
}

} // namespace regions
