#include "rules/PricePlansNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewPricePlanDlg.h"

namespace rules {

bool PricePlansNode::listRecords(std::vector<Record>& records) {
    client::CQVXAdminClass client;
    return client.listPricePlans(records);
}

void PricePlansNode::openEditor() {
    NewPricePlanDlg dialog(platform());
    runModal(dialog);
}

} // namespace rules
