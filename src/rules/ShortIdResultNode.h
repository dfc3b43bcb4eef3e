#pragma once

#include "console/RecordRow.h"
#include "rules/ShortIdDlg.h"

namespace rules {

// A rule about short ids as a row of the list of all.
class ShortIdResultNode final : public console::RecordRow<ShortIdResultNode, protocol::ShortIdRecord> {
public:
    using Dialog = ShortIdDlg;
    static constexpr console::NodeIdentity identity{
        .displayName = u"Short Id", .image = 14, .strip = console::driverAndShortIdStrip};
    static constexpr std::array cells{console::RecordCell(&protocol::ShortIdRecord::comment)};
    // "Short id", "Short Id" and "Short ID": all three spellings of the term must stay.
    static constexpr console::RowCommands rowCommands{.edit{u"Edit Short ID rule", u"To edit Short ID rule", 372},
                                                      .remove{u"Remove Short ID rule", u"To remove Short ID rule", 373},
                                                      .question =
                                                          u"Do you want to delete the selected Short ID rule? "};

    using RecordRow::RecordRow;

protected:
    void deleteRecord(client::CQVXAdminClass& client) override { client.deleteShortId(record().id); }
};

} // namespace rules
