#pragma once

#include "console/RecordList.h"
#include "rules/PricePlanNode.h"

namespace rules {

// The price plans known to the server, one row each.
class PricePlansNode final : public console::RecordList<PricePlansNode, PricePlanNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Price Plans", .image = 20, .strip = console::driverAndShortIdStrip};
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Comment", 3},
                                       console::Column{u"Pay Method", 2}};
    static constexpr console::MenuEntry newEntry{u"New Price Plan...", u"To create a new price plan", 375};

    using RecordList::RecordList;

protected:
    bool listRecords(client::CQVXAdminClass& client, std::vector<Record>& records) override {
        return client.listPricePlans(records);
    }
};

} // namespace rules
