#pragma once

#include "console/RecordRow.h"
#include "rules/NewPricePlanDlg.h"

namespace rules {

// A price plan as a row of the list of all.
class PricePlanNode final : public console::RecordRow<PricePlanNode, protocol::PricePlanRecord> {
public:
    using Dialog = NewPricePlanDlg;
    static constexpr console::NodeIdentity identity{
        .displayName = u"Price Plan", .image = 12, .strip = console::driverAndShortIdStrip};
    // "External debit", which the dialog writes as "External Debit"; both must stay.
    static const char16_t* payMethodText(const protocol::PricePlanRecord& plan) {
        static constexpr std::array texts{u"Log", u"Wallet", u"External debit", u"Wallet and external debit"};
        return plan.payMethod < texts.size() ? texts[plan.payMethod] : u"";
    }
    static constexpr std::array cells{console::RecordCell(&protocol::PricePlanRecord::comment),
                                      console::RecordCell(&payMethodText)};
    static constexpr console::RowCommands rowCommands{.edit{u"Edit price plan", u"To edit price plan", 376},
                                                      .remove{u"Remove price plan", u"To remove price plan", 377},
                                                      .question = u"Do you want to delete the selected rule? "};

    using RecordRow::RecordRow;

protected:
    void deleteRecord(client::CQVXAdminClass& client) override { client.deletePricePlan(record().id); }
};

} // namespace rules
