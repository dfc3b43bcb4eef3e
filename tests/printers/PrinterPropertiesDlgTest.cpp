#include "printers/PrinterPropertiesDlg.h"

#include "tests/printers/PrinterDialogs.h"

namespace {

using platform::Answer;
using printers::PrinterPropertiesDlg;
using protocol::SetStatusOctetOrderRequest;

class PrinterProperties : public PrinterDialogs {
protected:
    std::unique_ptr<PrinterPropertiesDlg> opened(std::string id = "p1") {
        auto dialog = std::make_unique<PrinterPropertiesDlg>(platform_, std::move(id));
        dialog->open();
        return dialog;
    }
    protocol::PrinterRecord confirmed(PrinterPropertiesDlg& dialog) {
        dialog.okButton().userPressed();
        EXPECT_EQ(dialog.result(), forms::idOk);
        const auto all = updates();
        return all.empty() ? samplePrinter() : all.back();
    }
};

TEST_F(PrinterProperties, showsEveryFieldOfThePrinter) {
    const auto dialog = opened();
    const auto& fields = dialog->general.fields;

    EXPECT_EQ(dialog->title(), u"Properties");
    EXPECT_EQ(dialog->name.text(), u"Copier");
    EXPECT_EQ(dialog->location.text(), u"Quay 3");
    EXPECT_EQ(dialog->brandAndModel.brand.selectedText(), u"Oki");
    EXPECT_EQ(dialog->brandAndModel.model.selectedText(), u"Oki C2");
    EXPECT_EQ(fields.ip.text(), u"10.0.0.7");
    EXPECT_EQ(fields.port.text(), u"9100");
    EXPECT_EQ(dialog->general.fields.fpBoxIp.text(), u"10.0.0.8");
    EXPECT_EQ(fields.lprQueueName.text(), u"lpr");
    EXPECT_EQ(fields.comment.text(), u"Ask Ms Ahrn");
    EXPECT_TRUE(fields.snmpActive.checked());
    EXPECT_EQ(fields.snmpCommunity.text(), u"private");
    EXPECT_EQ(fields.snmpIndex.text(), u"7");
    EXPECT_EQ(fields.accounting.selectedText(), u"External");
    EXPECT_EQ(fields.alarmProgram.list.selectedText(), u"Write a mail");
    EXPECT_EQ(fields.counterProgram.list.selectedText(), u"By SNMP");
    EXPECT_EQ(dialog->general.octetOrder.selectedText(), u"Swapped");
    EXPECT_EQ(fields.mailMessage.text(), u"Paper, please");
    EXPECT_EQ(fields.physicalStatus.text(), u"Error: No Paper");
    EXPECT_EQ(fields.printingStatus.text(), u"Connecting Printer");
    EXPECT_TRUE(fields.invisible.checked());
}

TEST_F(PrinterProperties, hasTheTabsGeneralAndRules) {
    const auto dialog = opened();

    ASSERT_EQ(dialog->tabs.pages().size(), 2U);
    EXPECT_EQ(dialog->tabs.pages()[0]->title(), u"General");
    EXPECT_EQ(dialog->tabs.pages()[1]->title(), u"Rules");
    EXPECT_EQ(dialog->tabs.current(), 0U);
    EXPECT_EQ(platform_.commands().back(), "ListRuleEntries");
}

TEST_F(PrinterProperties, offersProgramsBelowNoneAndTwoKindsOfAccounting) {
    const auto dialog = opened();
    const auto& fields = dialog->general.fields;

    EXPECT_EQ(rowsOf(fields.alarmProgram.list), (Names{u"NONE", u"Write a mail", u"Call the desk"}));
    EXPECT_EQ(rowsOf(fields.counterProgram.list), (Names{u"NONE", u"By hand", u"By SNMP"}));
    EXPECT_EQ(rowsOf(fields.accounting), (Names{u"Internal", u"External"}));
    EXPECT_EQ(rowsOf(dialog->general.octetOrder), (Names{u"Default", u"Normal", u"Swapped"}));
}

TEST_F(PrinterProperties, anOctetOrderThatIsNeitherOneNorTwoIsShownAsDefault) {
    octetOrder_ = support::hex("09 00 00 00");

    EXPECT_EQ(opened()->general.octetOrder.selectedText(), u"Default");
}

TEST_F(PrinterProperties, anUnchangedPrinterIsNotUpdated) {
    const auto dialog = opened();

    dialog->okButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_TRUE(updates().empty());
}

TEST_F(PrinterProperties, anEditOfThreeFieldsSendsThreeEqualUpdates) {
    const auto dialog = opened();
    dialog->general.fields.comment.userTyped(u"");
    dialog->location.userTyped(u"Quay 4");
    dialog->general.fields.ip.userTyped(u"10.0.0.9");

    dialog->okButton().userPressed();

    auto expected = samplePrinter();
    expected.comment = u"";
    expected.location = u"Quay 4";
    expected.ip = "10.0.0.9";
    EXPECT_EQ(updates(), (std::vector<protocol::PrinterRecord>{expected, expected, expected}));
}

TEST_F(PrinterProperties, everyFieldIsStored) {
    const auto dialog = opened();
    auto& fields = dialog->general.fields;
    dialog->name.userTyped(u"Plotter");
    choose(dialog->brandAndModel.brand, u"Acme");
    choose(dialog->brandAndModel.model, u"Acme Laser 1");
    fields.port.userTyped(u"631");
    fields.lprQueueName.userTyped(u"queue");
    dialog->general.fields.fpBoxIp.userTyped(u"10.0.0.1");
    fields.invisible.userChecked(false);
    fields.snmpActive.userChecked(false);
    fields.snmpCommunity.userTyped(u"public");
    fields.snmpIndex.userTyped(u"3");
    choose(fields.accounting, u"Internal");
    choose(fields.alarmProgram.list, u"Call the desk");
    choose(fields.counterProgram.list, u"By hand");
    fields.mailMessage.userTyped(u"Toner");

    const auto stored = confirmed(*dialog);

    auto expected = samplePrinter();
    expected.name = u"Plotter";
    expected.modelId = "a1";
    expected.port = 631;
    expected.lprQueueName = u"queue";
    expected.fpBoxIp = "10.0.0.1";
    expected.invisible = 0;
    expected.snmpActive = false;
    expected.snmpCommunity = u"public";
    expected.snmpIndex = 3;
    expected.accounting = 0;
    expected.alarmProgramId = "alarm1";
    expected.counterProgramId = "count2";
    expected.mailMessage = u"Toner";
    EXPECT_EQ(stored, expected); // and what the console only carries
    EXPECT_EQ(updates().size(), 13U);
}

TEST_F(PrinterProperties, anEmptyPortStores515) {
    const auto dialog = opened();
    dialog->general.fields.port.userTyped(u"");

    EXPECT_EQ(confirmed(*dialog).port, 515U);
}

TEST_F(PrinterProperties, aPortThatIsNoNumberStoresWhatItBeginsWith) {
    const auto dialog = opened();
    dialog->general.fields.port.userTyped(u"abc");
    EXPECT_EQ(dialog->general.fields.port.problem(), u"Not a number: what begins it counts");
    EXPECT_EQ(confirmed(*dialog).port, 0U);

    const auto again = opened();
    again->general.fields.port.userTyped(u"80 or so");
    EXPECT_EQ(confirmed(*again).port, 80U);
}

TEST_F(PrinterProperties, onlyTheFirstCharacterOfTheSnmpIndexIsStored) {
    const auto dialog = opened();
    dialog->general.fields.snmpIndex.userTyped(u"42");
    EXPECT_EQ(dialog->general.fields.snmpIndex.problem(), u"Only the first digit is stored");

    EXPECT_EQ(confirmed(*dialog).snmpIndex, 4);
}

TEST_F(PrinterProperties, anSnmpIndexOfSeveralDigitsStaysWhileItsBoxIsLeftAlone) {
    estate_.printers[0].snmpIndex = 42;
    const auto dialog = opened();
    EXPECT_EQ(dialog->general.fields.snmpIndex.text(), u"42");
    dialog->location.userTyped(u"Quay 4");

    EXPECT_EQ(confirmed(*dialog).snmpIndex, 42);
}

TEST_F(PrinterProperties, anEmptySnmpIndexStoresNothing) {
    const auto dialog = opened();
    dialog->general.fields.snmpIndex.userTyped(u"");

    EXPECT_EQ(confirmed(*dialog).snmpIndex, 7);
}

TEST_F(PrinterProperties, noneStoresAnEmptyProgram) {
    const auto dialog = opened();
    choose(dialog->general.fields.counterProgram.list, u"NONE");
    choose(dialog->general.fields.alarmProgram.list, u"NONE");

    const auto stored = confirmed(*dialog);

    EXPECT_EQ(stored.counterProgramId, "");
    EXPECT_EQ(stored.alarmProgramId, "");
}

TEST_F(PrinterProperties, ofTwoProgramsWithTheSameNameAnAlarmTakesTheFirstAndACounterTheChosen) {
    programs_[0] = {program("alarm1", u"Same"), program("alarm2", u"Same")};
    programs_[2] = {program("count1", u"Same"), program("count2", u"Same")};
    estate_.printers[0].alarmProgramId.clear();
    estate_.printers[0].counterProgramId.clear();
    const auto dialog = opened();
    dialog->general.fields.alarmProgram.list.userSelected(2);
    dialog->general.fields.counterProgram.list.userSelected(2);

    const auto stored = confirmed(*dialog);

    EXPECT_EQ(stored.alarmProgramId, "alarm2"); // of row 1
    EXPECT_EQ(stored.counterProgramId, "count1");
}

TEST_F(PrinterProperties, aProgramThatNoLongerExistsStaysUntilAnotherIsChosen) {
    programs_[0].clear();
    const auto dialog = opened();
    EXPECT_EQ(dialog->general.fields.alarmProgram.list.selection(), std::nullopt);
    dialog->location.userTyped(u"Quay 4");

    EXPECT_EQ(confirmed(*dialog).alarmProgramId, "alarm2");
}

TEST_F(PrinterProperties, accountingOneToThreeReadsExternalAndExternalStoresThree) {
    for (const std::uint8_t value : std::initializer_list<std::uint8_t>{1, 2, 3}) {
        estate_.printers[0].accounting = value;
        const auto dialog = opened();
        EXPECT_EQ(dialog->general.fields.accounting.selectedText(), u"External");
        dialog->location.userTyped(u"Quay 4");

        EXPECT_EQ(confirmed(*dialog).accounting, 3);
    }
}

TEST_F(PrinterProperties, sendsTheOctetOrderWithEveryOkBeforeTheUpdates) {
    const auto dialog = opened();
    choose(dialog->general.octetOrder, u"Normal");
    dialog->location.userTyped(u"Quay 4");

    dialog->okButton().userPressed();

    const auto orders = sent<SetStatusOctetOrderRequest>(platform_.commands().size());
    ASSERT_EQ(orders.size(), 1U);
    EXPECT_EQ(orders[0].order, 1U);
    EXPECT_EQ(orders[0].printerId, "p1");
    EXPECT_EQ(platform_.commands().back(), "UpdateRecord");
}

TEST_F(PrinterProperties, sendsTheNumberOfEachOctetOrder) {
    const std::vector<std::u16string_view> rows{u"Default", u"Normal", u"Swapped"};
    for (std::size_t order = 0; order < rows.size(); ++order) {
        const auto dialog = opened();
        choose(dialog->general.octetOrder, rows[order]);

        dialog->okButton().userPressed();

        EXPECT_EQ(sent<SetStatusOctetOrderRequest>(platform_.commands().size()).back().order, order);
    }
}

TEST_F(PrinterProperties, staysOpenWithoutAModel) {
    const auto dialog = opened();
    choose(dialog->brandAndModel.brand, u"Acme");
    platform_.ui.expectBox(Answer::ok, u"Please choose Brand and Model");

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Information");
    EXPECT_EQ(dialog->focus(), &dialog->brandAndModel.model);
    EXPECT_TRUE(updates().empty());
}

TEST_F(PrinterProperties, leavesTheQueueStateAsItWasLoaded) {
    estate_.printers[0].queueState = '2';
    const auto dialog = opened();
    dialog->location.userTyped(u"Quay 4");

    EXPECT_EQ(confirmed(*dialog).queueState, '2');
}

TEST_F(PrinterProperties, showsARefusalAndEndsAllTheSame) {
    estate_.updateReply = {.caption = u"Not saved", .text = u"There is one already.", .style = 0x30};
    const auto dialog = opened();
    dialog->location.userTyped(u"Quay 4");

    dialog->okButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_EQ(updates().size(), 1U);
}

TEST_F(PrinterProperties, staysOpenWhenTheServerCannotBeReached) {
    const auto dialog = opened();
    dialog->location.userTyped(u"Quay 4");
    estate_.goOffline();

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

TEST_F(PrinterProperties, sendsNothingOnCancel) {
    const auto dialog = opened();
    const auto commands = platform_.commands().size();
    dialog->location.userTyped(u"Quay 4");

    dialog->cancelButton().userPressed();

    EXPECT_EQ(platform_.commands().size(), commands);
}

TEST_F(PrinterProperties, cannotBeConfirmedWithoutTheRecord) {
    EXPECT_FALSE(opened("gone")->okButton().enabled());
}

TEST_F(PrinterProperties, cannotBeConfirmedWithoutTheBrands) {
    estate_.brokenLists[4] = brokenList();

    EXPECT_FALSE(opened()->okButton().enabled());
}

TEST_F(PrinterProperties, cannotBeConfirmedWithoutTheModels) {
    estate_.brokenLists[5] = brokenList();

    EXPECT_FALSE(opened()->okButton().enabled());
}

TEST_F(PrinterProperties, cannotBeConfirmedWhenTheModelsOfAnotherBrandCouldNotBeRead) {
    const auto dialog = opened();
    EXPECT_TRUE(dialog->okButton().enabled());
    estate_.brokenLists[5] = brokenList();

    choose(dialog->brandAndModel.brand, u"Acme");

    EXPECT_FALSE(dialog->okButton().enabled());
}

TEST_F(PrinterProperties, cannotBeConfirmedWithoutThePrograms) {
    estate_.brokenLists[27] = brokenList();

    EXPECT_FALSE(opened()->okButton().enabled());
}

TEST_F(PrinterProperties, cannotBeConfirmedWithoutTheCounterPrograms) {
    programs_[2].clear();
    estate_.lists[27] = [](const support::Bytes& fields) -> std::vector<support::Bytes> {
        return fields.at(0) == 2 ? std::vector<support::Bytes>{support::hex("05")} : std::vector<support::Bytes>();
    };

    EXPECT_FALSE(opened()->okButton().enabled());
}

TEST_F(PrinterProperties, cannotBeConfirmedWithoutTheOctetOrder) {
    octetOrder_.clear();

    EXPECT_FALSE(opened()->okButton().enabled());
}

} // namespace
