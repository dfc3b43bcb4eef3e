#include "rules/PageLimitObjects.h"

#include "client/CQVXAdminClass.h"
#include "rules/PageLimitDlg.h"

namespace rules {

void PageLimitObjects::read() {
    client::CQVXAdminClass client;
    client.listPageLimits(ids_, names_);
}

bool PageLimitObjects::make(const protocol::RuleEntryRecord& entry) {
    PageLimitDlg dialog(platform_, PageLimitDlg::Opener{.ids = ids_, .names = names_, .saved = saved, .entry = entry});
    return platform_.ui.runModal(dialog, platform_.ui.activeWindow()) == forms::idOk;
}

void PageLimitObjects::edit(std::size_t row, const protocol::RuleEntryRecord& entry) {
    client::CQVXAdminClass client;
    const auto limit = client.getPageLimit(ids_[row]);
    if (!limit) {
        return;
    }
    PageLimitDlg dialog(platform_, PageLimitDlg::Opener{.ids = ids_, .names = names_, .saved = saved, .entry = entry},
                        *limit);
    platform_.ui.runModal(dialog, platform_.ui.activeWindow());
}

// Asks for the limit first, so that one that has gone meanwhile ends here; this must stay.
void PageLimitObjects::remove(std::size_t row) {
    client::CQVXAdminClass client;
    if (const auto limit = client.getPageLimit(ids_[row])) {
        client.deletePageLimit(limit->id);
    }
}

} // namespace rules
