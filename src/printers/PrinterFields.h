#pragma once

#include "client/PrinterRecordEdit.h"
#include "forms/CheckBox.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/MultiLineEdit.h"
#include "printers/ProgramList.h"

#include <initializer_list>
#include <string_view>

namespace printers {

// The fields that every dialog of a printer has, in groups.
class PrinterFields {
public:
    PrinterFields(forms::Container& container, std::initializer_list<std::u16string_view> accountingRows);
    PrinterFields(const PrinterFields&) = delete;
    PrinterFields& operator=(const PrinterFields&) = delete;

    // Shows a record with its texts and states. The lists of programs are read last; see ProgramList::fill.
    void open(const protocol::PrinterRecord& record);
    // Puts what was entered into the record.
    void take(client::PrinterRecordEdit& edit) const;
    // Whether no text was entered that says which printer it is.
    [[nodiscard]] bool blank() const;

    forms::Group network;
    forms::EditBox ip;
    forms::EditBox port;
    forms::EditBox lprQueueName;
    forms::EditBox fpBoxIp;
    forms::CheckBox invisible;

    forms::Group monitoring;
    forms::Label physicalStatus;
    forms::Label printingStatus;
    forms::CheckBox snmpActive;
    forms::EditBox snmpCommunity;
    forms::EditBox snmpIndex;

    forms::Group programs;
    forms::DropList accounting;
    ProgramList counterProgram;
    ProgramList alarmProgram;
    forms::MultiLineEdit mailMessage;

    forms::MultiLineEdit comment;

private:
    void takeMonitoring(client::PrinterRecordEdit& edit) const;
    void takePrograms(client::PrinterRecordEdit& edit) const;
    void hintAtNumbers();

    wire::WideString shownIndex_;
};

} // namespace printers
