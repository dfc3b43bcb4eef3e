#include "printers/PrinterPreferencesDlg.h"

#include "regions/RegionTree.h"
#include "tests/printers/PrinterDialogs.h"

namespace {

using platform::Answer;
using printers::PreferencesMode;
using printers::PreferencesSubject;
using printers::PrinterPreferencesDlg;
using protocol::CreateRecordRequest;

class PrinterPreferences : public PrinterDialogs {
protected:
    std::unique_ptr<PrinterPreferencesDlg> opened(PreferencesSubject subject) {
        auto dialog = std::make_unique<PrinterPreferencesDlg>(platform_, std::move(subject));
        dialog->open();
        return dialog;
    }
    std::unique_ptr<PrinterPreferencesDlg> openedNew() {
        return opened(
            {.mode = PreferencesMode::newPrinter, .regionId = 1, .regionName = u"North", .id = {}, .migrated = {}});
    }
    std::unique_ptr<PrinterPreferencesDlg> openedFollowPrint() {
        return opened(
            {.mode = PreferencesMode::followPrint, .regionId = 1, .regionName = u"North", .id = {}, .migrated = {}});
    }
    std::unique_ptr<PrinterPreferencesDlg> openedMigrated(PreferencesMode mode) {
        return opened(
            {.mode = mode,
             .regionId = 0,
             .regionName = {},
             .id = {},
             .migrated = {.entryId = "e1", .name = u"Old copier", .modelText = u"Oki C2 PCL", .printerId = "p1"}});
    }
    static void chooseAModel(PrinterPreferencesDlg& dialog) {
        choose(dialog.brandAndModel.brand, u"Oki");
        choose(dialog.brandAndModel.model, u"Oki C1");
    }
    // Confirms and gives what was created.
    CreateRecordRequest created(PrinterPreferencesDlg& dialog) {
        dialog.okButton().userPressed();
        EXPECT_EQ(dialog.result(), forms::idOk);
        const auto all = sent<CreateRecordRequest>(platform_.commands().size());
        EXPECT_EQ(all.size(), 1U);
        return all.empty() ? CreateRecordRequest() : all.back();
    }
};

TEST_F(PrinterPreferences, ofANewPrinterStartWithTheDefaults) {
    const auto dialog = openedNew();

    EXPECT_EQ(dialog->title(), u"New Printer");
    EXPECT_EQ(dialog->fields.snmpCommunity.text(), u"public");
    EXPECT_EQ(dialog->fields.port.text(), u"515");
    EXPECT_EQ(dialog->region.text(), u"North");
    EXPECT_TRUE(dialog->region.options().readOnly);
    EXPECT_EQ(rowsOf(dialog->brandAndModel.brand), (Names{u"Acme", u"Oki"}));
    EXPECT_TRUE(dialog->brandAndModel.model.items().empty());
    EXPECT_EQ(dialog->fields.alarmProgram.list.selectedText(), u"NONE");
    EXPECT_EQ(dialog->fields.counterProgram.list.selectedText(), u"NONE");
    EXPECT_FALSE(dialog->fields.physicalStatus.visible());
    EXPECT_FALSE(dialog->fields.printingStatus.visible());
    EXPECT_FALSE(dialog->modelText.visible());
    EXPECT_FALSE(dialog->fields.fpBoxIp.visible());
}

TEST_F(PrinterPreferences, offerAccountingWithTheRowsOfTheFormAndTwoBehindThem) {
    EXPECT_EQ(rowsOf(openedNew()->fields.accounting),
              (Names{u"Internal", u"Poll information", u"Poll & Use external information",
                     u"Poll & Merge external information", u"Internal", u"External"}));
}

TEST_F(PrinterPreferences, storeExternalAsThreeAndEveryOtherRowOfAccountingAsZero) {
    const std::vector<std::uint8_t> stored{0, 0, 0, 0, 0, 3};
    for (std::size_t row = 0; row < stored.size(); ++row) {
        const auto dialog = openedNew();
        chooseAModel(*dialog);
        dialog->name.userTyped(u"Copier");
        dialog->fields.accounting.userSelected(row);

        dialog->okButton().userPressed();

        const auto all = sent<CreateRecordRequest>(platform_.commands().size());
        ASSERT_EQ(all.size(), row + 1);
        EXPECT_EQ(all.back().record.accounting, stored[row]);
    }
}

TEST_F(PrinterPreferences, createAPrinterWithAllThatWasEntered) {
    const auto dialog = openedNew();
    auto& fields = dialog->fields;
    dialog->name.userTyped(u"Plotter");
    dialog->location.userTyped(u"Quay 5");
    chooseAModel(*dialog);
    fields.ip.userTyped(u"10.0.0.1");
    fields.port.userTyped(u"9100");
    fields.lprQueueName.userTyped(u"lpr");
    fields.comment.userTyped(u"Comment");
    fields.snmpActive.userChecked(true);
    fields.snmpIndex.userTyped(u"2");
    choose(fields.alarmProgram.list, u"Call the desk");
    choose(fields.counterProgram.list, u"By hand");
    choose(fields.accounting, u"External");
    fields.mailMessage.userTyped(u"Toner");
    fields.invisible.userChecked(true);
    dialog->doNotAutoCreateQueue.userChecked(true);

    const auto request = created(*dialog);

    protocol::PrinterRecord expected;
    expected.name = u"Plotter";
    expected.location = u"Quay 5";
    expected.modelId = "o1";
    expected.regionId = 1;
    expected.ip = "10.0.0.1";
    expected.port = 9100;
    expected.lprQueueName = u"lpr";
    expected.comment = u"Comment";
    expected.snmpActive = true;
    expected.snmpCommunity = u"public";
    expected.snmpIndex = 2;
    expected.alarmProgramId = "alarm1";
    expected.counterProgramId = "count2";
    expected.accounting = 3;
    expected.mailMessage = u"Toner";
    expected.invisible = 1;
    expected.doNotAutoCreateQueue = 1;
    EXPECT_EQ(request.record, expected);
    EXPECT_EQ(request.physicalPrinterId, "");
}

TEST_F(PrinterPreferences, storeAnEmptyPortAs515) {
    const auto dialog = openedNew();
    chooseAModel(*dialog);
    dialog->name.userTyped(u"Copier");
    dialog->fields.port.userTyped(u"");

    EXPECT_EQ(created(*dialog).record.port, 515U);
}

TEST_F(PrinterPreferences, storeNoneAsAnEmptyCounterProgram) {
    const auto dialog = openedNew();
    chooseAModel(*dialog);
    dialog->name.userTyped(u"Copier");

    EXPECT_EQ(created(*dialog).record.counterProgramId, "");
}

TEST_F(PrinterPreferences, stayOpenAfterAskingForBrandAndModel) {
    const auto dialog = openedNew();
    dialog->name.userTyped(u"Copier");
    choose(dialog->brandAndModel.brand, u"Oki");
    platform_.ui.expectBox(Answer::ok, u"Please choose Brand and Model");

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Information");
    EXPECT_EQ(dialog->focus(), &dialog->brandAndModel.model);
}

TEST_F(PrinterPreferences, ofAnotherBrandOfferItsModelsAndNoneIsChosen) {
    const auto dialog = openedNew();
    chooseAModel(*dialog);

    choose(dialog->brandAndModel.brand, u"Acme");

    EXPECT_EQ(rowsOf(dialog->brandAndModel.model), (Names{u"Acme Laser 1", u"Acme Laser 2"}));
    EXPECT_EQ(dialog->brandAndModel.model.selection(), std::nullopt);
}

TEST_F(PrinterPreferences, withoutAnyTextEndAndSaveNothing) {
    const auto dialog = openedNew();
    chooseAModel(*dialog);
    dialog->fields.invisible.userChecked(true);

    dialog->okButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_TRUE(sent<CreateRecordRequest>(platform_.commands().size()).empty());
}

TEST_F(PrinterPreferences, putThePrinterIntoTheRegionThatWasPicked) {
    const auto dialog = openedNew();
    chooseAModel(*dialog);
    dialog->name.userTyped(u"Copier");
    platform_.ui.expect<regions::RegionTree>([](regions::RegionTree& tree) {
        tree.tree.userSelected(1);
        tree.okButton().userPressed();
    });

    dialog->selectRegion.userPressed();

    EXPECT_EQ(dialog->region.text(), u"Harbour");
    EXPECT_EQ(created(*dialog).record.regionId, 2);
}

TEST_F(PrinterPreferences, keepTheRegionWhenPickingIsCancelled) {
    const auto dialog = openedNew();
    platform_.ui.expect<regions::RegionTree>([](regions::RegionTree& tree) { tree.cancelButton().userPressed(); });

    dialog->selectRegion.userPressed();

    EXPECT_EQ(dialog->region.text(), u"North");
}

TEST_F(PrinterPreferences, ofAFollowPrintDeviceTakeItsAddressInsteadOfARegion) {
    const auto dialog = openedFollowPrint();
    EXPECT_EQ(dialog->fields.fpBoxIp.label(), u"FP Box IP");
    EXPECT_FALSE(dialog->region.visible());
    EXPECT_FALSE(dialog->selectRegion.visible());
    chooseAModel(*dialog);
    dialog->name.userTyped(u"Anywhere");
    dialog->fields.fpBoxIp.userTyped(u"10.0.0.9");

    const auto record = created(*dialog).record;

    EXPECT_EQ(record.fpBoxIp, "10.0.0.9");
    EXPECT_EQ(record.regionId, 1);
    EXPECT_EQ(record.recordType, protocol::recordType::followQueue);
}

TEST_F(PrinterPreferences, ofAnExistingPrinterShowItWithItsStates) {
    const auto dialog =
        opened({.mode = PreferencesMode::existing, .regionId = 0, .regionName = {}, .id = "p1", .migrated = {}});

    EXPECT_EQ(dialog->title(), u"Properties");
    EXPECT_EQ(dialog->name.text(), u"Copier");
    EXPECT_EQ(dialog->region.text(), u"Harbour");
    EXPECT_FALSE(dialog->selectRegion.enabled());
    EXPECT_EQ(dialog->brandAndModel.model.selectedText(), u"Oki C2");
    EXPECT_EQ(dialog->fields.physicalStatus.text(), u"Error: No Paper");
    EXPECT_EQ(dialog->fields.printingStatus.text(), u"Connecting Printer");
    EXPECT_EQ(dialog->fields.accounting.selectedText(), u"External");
    EXPECT_TRUE(dialog->doNotAutoCreateQueue.checked());
}

TEST_F(PrinterPreferences, ofAnExistingPrinterUpdateIt) {
    const auto dialog =
        opened({.mode = PreferencesMode::existing, .regionId = 0, .regionName = {}, .id = "p1", .migrated = {}});
    dialog->doNotAutoCreateQueue.userChecked(false);
    dialog->location.userTyped(u"");

    dialog->okButton().userPressed();

    auto expected = samplePrinter();
    expected.doNotAutoCreateQueue = 0;
    expected.location = u"";
    EXPECT_EQ(updates(), (std::vector<protocol::PrinterRecord>{expected, expected}));
}

TEST_F(PrinterPreferences, showAnUnknownByteAsNone) {
    estate_.printers[0].snmpStatus = 4;
    estate_.printers[0].printingStatus = 4;
    const auto dialog =
        opened({.mode = PreferencesMode::existing, .regionId = 0, .regionName = {}, .id = "p1", .migrated = {}});

    EXPECT_EQ(dialog->fields.physicalStatus.text(), u"None");
    EXPECT_EQ(dialog->fields.printingStatus.text(), u"None");
}

// The entry of the inventory, which the server gives as a record that is to be copied.
class MigratedPrinter : public PrinterPreferences {
protected:
    MigratedPrinter() {
        auto entry = samplePrinter();
        entry.id = "e1";
        entry.regionId = 0;
        entry.modelId = "o2";
        estate_.brokenLists[6] = support::countedList({bytesOf(entry)});
    }
    void pickNorth(PrinterPreferencesDlg& dialog) {
        platform_.ui.expect<regions::RegionTree>([](regions::RegionTree& tree) {
            tree.tree.userSelected(0);
            tree.okButton().userPressed();
        });
        dialog.selectRegion.userPressed();
    }
};

TEST_F(MigratedPrinter, startsFromTheEntryWithTheNameOfItsPrinter) {
    const auto dialog = openedMigrated(PreferencesMode::migratedPrinter);

    EXPECT_EQ(dialog->title(), u"Create migrated printer");
    EXPECT_EQ(dialog->name.text(), u"Old copier");
    EXPECT_TRUE(dialog->modelText.visible());
    EXPECT_EQ(dialog->modelText.text(), u"Oki C2 PCL");
    EXPECT_EQ(dialog->fields.ip.text(), u"10.0.0.7");
    EXPECT_EQ(estate_.requests(1).front(), "6: 02 00 65 31 00 00 00 00 09 00");
}

TEST_F(MigratedPrinter, isCreatedAsANewPrinterOfTheEntry) {
    const auto dialog = openedMigrated(PreferencesMode::migratedPrinter);
    pickNorth(*dialog);

    const auto request = created(*dialog);

    EXPECT_EQ(request.record.id, "e1");
    EXPECT_EQ(request.record.recordType, protocol::recordType::printer);
    EXPECT_EQ(request.record.name, u"Old copier");
    EXPECT_EQ(request.record.regionId, 1);
}

TEST_F(MigratedPrinter, asAQueueIsCreatedUnderThePrinterOfTheEntry) {
    const auto dialog = openedMigrated(PreferencesMode::migratedQueue);
    EXPECT_EQ(dialog->title(), u"Create migrated queue");
    EXPECT_EQ(estate_.requests(1).front(), "6: 02 00 65 31 00 00 00 00 0A 00");

    const auto request = created(*dialog);

    EXPECT_EQ(request.physicalPrinterId, "p1");
    EXPECT_EQ(request.record.id, "p1");
    EXPECT_EQ(request.record.recordType, protocol::recordType::queue);
}

TEST_F(MigratedPrinter, cannotBeConfirmedWithoutTheEntry) {
    estate_.brokenLists[6] = support::countedList({});

    EXPECT_FALSE(openedMigrated(PreferencesMode::migratedPrinter)->okButton().enabled());
}

// Each of these takes one of the lists away.
class UnreadLists : public PrinterPreferences, public ::testing::WithParamInterface<std::uint16_t> {};

TEST_P(UnreadLists, keepANewPrinterFromBeingConfirmed) {
    estate_.brokenLists[GetParam()] = brokenList();

    const auto dialog = openedNew();

    EXPECT_FALSE(dialog->okButton().enabled());
    EXPECT_EQ(dialog->fields.snmpCommunity.text(), u"public");
}

INSTANTIATE_TEST_SUITE_P(OfBrandsAndPrograms, UnreadLists, ::testing::Values(4, 27));

TEST_F(PrinterPreferences, withoutTheModelsOfTheChosenBrandCannotBeConfirmed) {
    const auto dialog = openedNew();
    estate_.brokenLists[5] = brokenList();

    choose(dialog->brandAndModel.brand, u"Oki");

    EXPECT_FALSE(dialog->okButton().enabled());
}

TEST_F(PrinterPreferences, withoutARegionFail) {
    const auto dialog =
        opened({.mode = PreferencesMode::newPrinter, .regionId = 0, .regionName = {}, .id = {}, .migrated = {}});

    EXPECT_FALSE(dialog->okButton().enabled());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

} // namespace
