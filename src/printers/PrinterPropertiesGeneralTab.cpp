#include "printers/PrinterPropertiesGeneralTab.h"

#include "client/CQVXAdminClass.h"
#include "client/ChangedField.h"
#include "client/ConnectFailed.h"

namespace printers {

// An order that the list does not know is the default one.
void PrinterPropertiesGeneralTab::open(const protocol::PrinterRecord& record) {
    fields.open(record);
    const auto order = client::CQVXAdminClass().getStatusOctetOrder(record.id);
    if (!order) {
        throw client::ConnectFailed();
    }
    octetOrder.selectValue(*order);
}

void PrinterPropertiesGeneralTab::sendOctetOrder(const std::string& id) const {
    client::CQVXAdminClass().setStatusOctetOrder(id, octetOrder.value().value_or(0));
}

} // namespace printers
