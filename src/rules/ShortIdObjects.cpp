#include "rules/ShortIdObjects.h"

#include "client/CQVXAdminClass.h"
#include "rules/ShortIdDlg.h"

#include <algorithm>

namespace rules {

void ShortIdObjects::read() {
    shortIds_.clear();
    client::CQVXAdminClass client;
    client.listShortIds(shortIds_);
}

bool ShortIdObjects::make(const protocol::RuleEntryRecord& /*entry*/) {
    ShortIdDlg dialog(platform_);
    if (platform_.ui.runModal(dialog, platform_.ui.activeWindow()) != forms::idOk) {
        return false;
    }
    saveChoice(dialog.shortId());
    return true;
}

void ShortIdObjects::edit(std::size_t row, const protocol::RuleEntryRecord& /*entry*/) {
    ShortIdDlg dialog(platform_, shortIds_[row]);
    if (platform_.ui.runModal(dialog, platform_.ui.activeWindow()) == forms::idOk) {
        saveChoice(dialog.shortId());
    }
}

void ShortIdObjects::saveChoice(const protocol::ShortIdRecord& shortId) {
    read();
    saved = {.index = {}, .name = shortId.name};
    const auto place = std::ranges::find(shortIds_, shortId.id, &protocol::ShortIdRecord::id);
    if (place != shortIds_.end()) {
        saved.index = static_cast<std::size_t>(place - shortIds_.begin());
    }
}

void ShortIdObjects::remove(std::size_t row) {
    client::CQVXAdminClass client;
    client.deleteShortId(shortIds_[row].id);
}

} // namespace rules
