#include "rules/PageLimitResultNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/PageLimitDlg.h"

namespace rules {

void PageLimitResultNode::openEditor() {
    PageLimitDlg dialog(platform(), record());
    runModal(dialog);
}

void PageLimitResultNode::deleteRecord() {
    client::CQVXAdminClass client;
    client.deletePageLimit(record().id);
}

} // namespace rules
