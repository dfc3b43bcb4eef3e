#pragma once

#include "printers/PrinterPropertiesForm.h"
#include "protocol/estate/Printer.h"

#include <string>
#include <utility>

namespace printers {

// Edits a printer.
class PrinterPropertiesDlg final : public PrinterPropertiesForm {
public:
    PrinterPropertiesDlg(platform::Platform& platform, std::string id)
        : PrinterPropertiesForm(platform, std::move(id), protocol::recordType::loadPrinter) {}
};

} // namespace printers
