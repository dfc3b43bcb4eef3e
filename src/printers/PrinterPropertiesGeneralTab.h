#pragma once

#include "forms/ChoiceList.h"
#include "forms/Page.h"
#include "printers/PrinterFields.h"

#include <cstdint>
#include <string>

namespace printers {

// The page with the fields of a printer in its dialog.
class PrinterPropertiesGeneralTab {
public:
    explicit PrinterPropertiesGeneralTab(forms::Tabs& tabs) : page(tabs, u"General") {}

    // Shows a record. Throws client::ConnectFailed when something that it needs can't be read.
    void open(const protocol::PrinterRecord& record);
    // Sends the order in which the printer reports its status octets, whether or not it was changed.
    void sendOctetOrder(const std::string& id) const;

    forms::Page page;
    PrinterFields fields{page, {u"Internal", u"External"}};
    forms::ChoiceList<std::uint32_t> octetOrder{
        fields.monitoring, u"Status Octet Order", {{0, u"Default"}, {1, u"Normal"}, {2, u"Swapped"}}};
};

} // namespace printers
