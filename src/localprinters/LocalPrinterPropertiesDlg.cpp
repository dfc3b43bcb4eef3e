#include "localprinters/LocalPrinterPropertiesDlg.h"

#include "forms/Questions.h"
#include "protocol/estate/Printer.h"

#include <utility>

namespace localprinters {

LocalPrinterPropertiesDlg::LocalPrinterPropertiesDlg(platform::Platform& platform, std::string id)
    : PrinterPropertiesForm(platform, std::move(id), protocol::recordType::localPrinter) {}

// "shoud" must stay.
bool LocalPrinterPropertiesDlg::complete() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field shoud not be blank!");
        return false;
    }
    return PrinterPropertiesForm::complete();
}

} // namespace localprinters
