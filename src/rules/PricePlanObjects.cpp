#include "rules/PricePlanObjects.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewPricePlanDlg.h"

namespace rules {

void PricePlanObjects::read() {
    plans_.clear();
    client::CQVXAdminClass client;
    client.listPricePlans(plans_);
}

bool PricePlanObjects::make(const protocol::RuleEntryRecord& entry) {
    NewPricePlanDlg dialog(platform_, NewPricePlanDlg::Opener{.plans = plans_, .saved = saved, .entry = entry});
    return platform_.ui.runModal(dialog, platform_.ui.activeWindow()) == forms::idOk;
}

void PricePlanObjects::edit(std::size_t row, const protocol::RuleEntryRecord& entry) {
    NewPricePlanDlg dialog(platform_, NewPricePlanDlg::Opener{.plans = plans_, .saved = saved, .entry = entry},
                           plans_[row]);
    platform_.ui.runModal(dialog, platform_.ui.activeWindow());
}

void PricePlanObjects::remove(std::size_t row) {
    client::CQVXAdminClass client;
    client.deletePricePlan(plans_[row].id);
}

} // namespace rules
