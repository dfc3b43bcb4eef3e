#include "printers/PrinterPropertiesGeneralTab.h"

#include "client/CQVXAdminClass.h"
#include "client/ConnectFailed.h"
#include "printers/ChangedField.h"

namespace printers {

// An order that the list does not know is the default one.
void PrinterPropertiesGeneralTab::open(const protocol::PrinterRecord& record) {
    fpBoxIp.setText(wire::fromCodePage(record.fpBoxIp));
    fields.open(record);
    const auto order = client::CQVXAdminClass().getStatusOctetOrder(record.id);
    if (!order) {
        throw client::ConnectFailed();
    }
    octetOrder.selectValue(*order);
}

void PrinterPropertiesGeneralTab::take(client::PrinterRecordEdit& edit) const {
    fields.take(edit);
    change(edit, &protocol::PrinterRecord::fpBoxIp, &client::PrinterRecordEdit::setFpBoxIp,
           wire::toCodePage(fpBoxIp.text()));
}

void PrinterPropertiesGeneralTab::sendOctetOrder(const std::string& id) const {
    client::CQVXAdminClass().setStatusOctetOrder(id, octetOrder.value().value_or(0));
}

} // namespace printers
