#include "printers/PrinterFields.h"

#include "client/ChangedField.h"
#include "protocol/alarms/AlarmProgram.h"
#include "queues/DialogStatus.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace printers {
namespace {

using client::PrinterRecordEdit;
using protocol::PrinterRecord;

constexpr std::uint32_t usualPort = 515;
constexpr forms::TextOptions sentAsBytes{.codePageBytes = 0xFFFF};

// The number that a text begins with; 0 if it begins with none.
std::uint32_t numberOf(wire::WideStringView text) {
    const auto number = std::strtoll(wire::toCodePage(text).c_str(), nullptr, 10);
    return static_cast<std::uint32_t>(std::clamp<long long>(number, std::numeric_limits<std::int32_t>::min(),
                                                            std::numeric_limits<std::int32_t>::max()));
}

// Only the first character counts; this must stay.
std::uint8_t indexOf(wire::WideStringView text) {
    return static_cast<std::uint8_t>(numberOf(text.substr(0, 1)));
}

bool isDigits(wire::WideStringView text) {
    return std::ranges::all_of(text, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

} // namespace

PrinterFields::PrinterFields(forms::Container& container, std::initializer_list<std::u16string_view> accountingRows)
    : network(container, u"Network"),
      ip(network, u"IP", sentAsBytes),
      port(network, u"Port"),
      lprQueueName(network, u"LPR Q Name"),
      fpBoxIp(network, u"Fp box IP", sentAsBytes),
      invisible(network, u"Invisible"),
      monitoring(container, u"SNMP monitoring"),
      physicalStatus(monitoring, u"Physical Status"),
      printingStatus(monitoring, u"Printing Status"),
      snmpActive(monitoring, u"Activate"),
      snmpCommunity(monitoring, u"SNMP Community"),
      snmpIndex(monitoring, u"SNMP Index"),
      programs(container, u"Accounting and alarms"),
      accounting(programs, u"Accounting"),
      counterProgram(programs, u"Counter Program", protocol::alarmProgramKind::counter),
      alarmProgram(programs, u"Alarm Program", protocol::alarmProgramKind::alarm),
      mailMessage(programs, u"Printer Mail Message"),
      comment(container, u"Admin Comment") {
    monitoring.setBeside(network);
    for (const auto row : accountingRows) {
        accounting.addItem(wire::WideString(row));
    }
    hintAtNumbers();
}

void PrinterFields::hintAtNumbers() {
    port.onChange = [this] { port.setProblem(isDigits(port.text()) ? u"" : u"Not a number: what begins it counts"); };
    snmpIndex.onChange = [this] {
        snmpIndex.setProblem(snmpIndex.text().size() > 1 ? u"Only the first digit is stored" : u"");
    };
}

void PrinterFields::open(const PrinterRecord& record) {
    ip.setText(wire::fromCodePage(record.ip));
    port.setText(wire::toWide(std::to_string(record.port)));
    lprQueueName.setText(record.lprQueueName);
    fpBoxIp.setText(wire::fromCodePage(record.fpBoxIp));
    invisible.setChecked(record.invisible != 0);
    physicalStatus.setText(wire::WideString(queues::physicalStatusWord(record.snmpStatus)));
    printingStatus.setText(wire::WideString(queues::printingStatusWord(record.printingStatus)));
    snmpActive.setChecked(record.snmpActive);
    snmpCommunity.setText(record.snmpCommunity);
    shownIndex_ = wire::toWide(std::to_string(record.snmpIndex));
    snmpIndex.setText(shownIndex_);
    accounting.selectText(protocol::accounting::nameOf(record.accounting));
    mailMessage.setText(record.mailMessage);
    comment.setText(record.comment);
    alarmProgram.fill(record.alarmProgramId);
    counterProgram.fill(record.counterProgramId);
}

void PrinterFields::take(PrinterRecordEdit& edit) const {
    change(edit, &PrinterRecord::ip, &PrinterRecordEdit::setIp, wire::toCodePage(ip.text()));
    change(edit, &PrinterRecord::port, &PrinterRecordEdit::setPort,
           port.text().empty() ? usualPort : numberOf(port.text()));
    change(edit, &PrinterRecord::lprQueueName, &PrinterRecordEdit::setLprQueueName, lprQueueName.text());
    change(edit, &PrinterRecord::fpBoxIp, &PrinterRecordEdit::setFpBoxIp, wire::toCodePage(fpBoxIp.text()));
    change(edit, &PrinterRecord::invisible, &PrinterRecordEdit::setInvisible, invisible.checked() ? 1 : 0);
    change(edit, &PrinterRecord::comment, &PrinterRecordEdit::setComment, comment.text());
    takeMonitoring(edit);
    takePrograms(edit);
}

// An index of several digits stays as long as its box is left alone, and so does one whose box is emptied.
void PrinterFields::takeMonitoring(PrinterRecordEdit& edit) const {
    change(edit, &PrinterRecord::snmpActive, &PrinterRecordEdit::setSnmpActive, snmpActive.checked());
    change(edit, &PrinterRecord::snmpCommunity, &PrinterRecordEdit::setSnmpCommunity, snmpCommunity.text());
    if (!snmpIndex.text().empty() && snmpIndex.text() != shownIndex_) {
        change(edit, &PrinterRecord::snmpIndex, &PrinterRecordEdit::setSnmpIndex, indexOf(snmpIndex.text()));
    }
}

// An alarm program is found by its name, so of two with the same name the first one is taken; a counter program is
// found by its row. This must stay.
void PrinterFields::takePrograms(PrinterRecordEdit& edit) const {
    change(edit, &PrinterRecord::accounting, &PrinterRecordEdit::setAccounting,
           protocol::accounting::valueOf(accounting.selectedText()));
    change(edit, &PrinterRecord::mailMessage, &PrinterRecordEdit::setMailMessage, mailMessage.text());
    if (counterProgram.list.selection()) {
        change(edit, &PrinterRecord::counterProgramId, &PrinterRecordEdit::setCounterProgramId,
               counterProgram.list.selectedData());
    }
    if (alarmProgram.list.selection()) {
        const auto found =
            std::ranges::find(alarmProgram.list.items(), alarmProgram.list.selectedText(), &forms::DropListItem::text);
        change(edit, &PrinterRecord::alarmProgramId, &PrinterRecordEdit::setAlarmProgramId, found->data);
    }
}

bool PrinterFields::blank() const {
    return ip.text().empty() && lprQueueName.text().empty() && comment.text().empty();
}

} // namespace printers
