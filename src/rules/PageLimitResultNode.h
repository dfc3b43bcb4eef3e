#pragma once

#include "console/RecordRow.h"
#include "rules/PageLimitDlg.h"

namespace rules {

// A page limit as a row of the list of all.
class PageLimitResultNode final : public console::RecordRow<PageLimitResultNode, protocol::PageLimitRecord> {
public:
    using Dialog = PageLimitDlg;
    static constexpr console::NodeIdentity identity{
        .displayName = u"Page Limit", .image = 10, .strip = console::driverAndShortIdStrip};
    static constexpr std::array cells{console::RecordCell(&protocol::PageLimitRecord::comment)};
    static constexpr console::RowCommands rowCommands{.edit{u"Edit page limit", u"To edit page limit", 372},
                                                      .remove{u"Remove page limit", u"To remove page limit", 373},
                                                      .question = u"Do you want to delete the selected limit rule? "};

    using RecordRow::RecordRow;

protected:
    void deleteRecord(client::CQVXAdminClass& client) override { client.deletePageLimit(record().id); }
};

} // namespace rules
