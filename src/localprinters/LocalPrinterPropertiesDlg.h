#pragma once

#include "printers/PrinterPropertiesForm.h"

#include <string>

namespace localprinters {

// Edits a local printer. Unlike any other, it can't be confirmed without a name.
class LocalPrinterPropertiesDlg final : public printers::PrinterPropertiesForm {
public:
    LocalPrinterPropertiesDlg(platform::Platform& platform, std::string id);

protected:
    [[nodiscard]] bool complete() override;
};

} // namespace localprinters
