#include "rules/ShortIdResultNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/ShortIdDlg.h"

namespace rules {

void ShortIdResultNode::openEditor() {
    ShortIdDlg dialog(platform(), record());
    runModal(dialog);
}

void ShortIdResultNode::deleteRecord() {
    client::CQVXAdminClass client;
    client.deleteShortId(record().id);
}

} // namespace rules
