#pragma once

#include "client/PrinterRecordEdit.h"
#include "drivers/BrandAndModelLists.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Tabs.h"
#include "printers/PrinterPropertiesGeneralTab.h"
#include "regions/CPrinterPrefRulesTab.h"

#include <cstdint>
#include <optional>
#include <string>

namespace printers {

// The base of the tabbed dialogs that edit a printer. What can't be read keeps the dialog from being confirmed.
class PrinterPropertiesForm : public forms::Form {
public:
    forms::EditBox name{*this, u"Printer Name"};
    forms::EditBox location{*this, u"Location"};
    drivers::BrandAndModelLists brandAndModel{*this};
    forms::Tabs tabs{*this};
    PrinterPropertiesGeneralTab general{tabs};
    regions::CPrinterPrefRulesTab rules{tabs};

protected:
    // The record is loaded by its id, as a type of protocol::recordType.
    PrinterPropertiesForm(platform::Platform& platform, std::string id, std::uint16_t recordType);

    void onInitDialog() override;
    void onOk() override;

    // False once a message has said what is missing.
    [[nodiscard]] virtual bool complete();

private:
    std::string id_;
    std::uint16_t recordType_;
    std::optional<client::PrinterRecordEdit> edit_; // once it is loaded
};

} // namespace printers
