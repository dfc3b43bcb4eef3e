#pragma once

#include "console/RecordList.h"
#include "rules/ShortIdResultNode.h"

namespace rules {

// The rules about short ids known to the server, one row each.
class ShortIdNode final : public console::RecordList<ShortIdNode, ShortIdResultNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Short Id", .image = 20, .strip = console::driverAndShortIdStrip};
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Comment", 3}};
    static constexpr console::MenuEntry newEntry{u"New Short id Rule...", u"To create a new short id rule", 465};

    using RecordList::RecordList;

protected:
    bool listRecords(client::CQVXAdminClass& client, std::vector<Record>& records) override {
        return client.listShortIds(records);
    }
    void openEditor() override {
        ShortIdDlg dialog(platform());
        if (runModal(dialog) == forms::idOk) {
            addRow(dialog.record());
        }
    }
};

} // namespace rules
