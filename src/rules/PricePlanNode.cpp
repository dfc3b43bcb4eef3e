#include "rules/PricePlanNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewPricePlanDlg.h"

namespace rules {

// "External debit", which the dialog writes as "External Debit"; both must stay.
const char16_t* PricePlanNode::payMethodText(const protocol::PricePlanRecord& plan) {
    static constexpr std::array texts{u"Log", u"Wallet", u"External debit", u"Wallet and external debit"};
    return plan.payMethod < texts.size() ? texts[plan.payMethod] : u"";
}

void PricePlanNode::openEditor() {
    NewPricePlanDlg dialog(platform(), record());
    runModal(dialog);
}

void PricePlanNode::deleteRecord() {
    client::CQVXAdminClass client;
    client.deletePricePlan(record().id);
}

} // namespace rules
