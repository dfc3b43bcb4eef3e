#pragma once

#include "console/RecordList.h"
#include "rules/PageLimitResultNode.h"

namespace rules {

// The page limits known to the server, one row each.
class PageLimitersNode final : public console::RecordList<PageLimitersNode, PageLimitResultNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Page Limiters", .image = 20, .strip = console::driverAndShortIdStrip};
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Comment", 3}};
    static constexpr console::MenuEntry newEntry{u"New Page Limit Rule...", u"To create a new page limit rule", 381};

    using RecordList::RecordList;

protected:
    bool listRecords(client::CQVXAdminClass& client, std::vector<Record>& records) override;
    void readRows() override;

private:
    std::vector<wire::WideString> names_; // as in the list
};

} // namespace rules
