#pragma once

#include "printers/PrinterPropertiesGeneralTab.h"

namespace localprinters {

// A local printer has the same fields as any other.
using LocalPrinterPropertiesGeneralTab = printers::PrinterPropertiesGeneralTab;

} // namespace localprinters
