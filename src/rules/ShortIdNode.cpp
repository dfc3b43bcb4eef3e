#include "rules/ShortIdNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/ShortIdDlg.h"

namespace rules {

bool ShortIdNode::listRecords(std::vector<Record>& records) {
    client::CQVXAdminClass client;
    return client.listShortIds(records);
}

void ShortIdNode::openEditor() {
    ShortIdDlg dialog(platform());
    if (runModal(dialog) == forms::idOk) {
        addRow(dialog.shortId());
    }
}

} // namespace rules
