#include "localprinters/LocalPrinterPropertiesDlg.h"

#include "localprinters/LocalPrinterPropertiesGeneralTab.h"
#include "tests/printers/PrinterDialogs.h"

namespace {

using localprinters::LocalPrinterPropertiesDlg;
using platform::Answer;

class LocalPrinterProperties : public PrinterDialogs {
protected:
    LocalPrinterProperties() {
        auto local = samplePrinter();
        local.recordType = protocol::recordType::localPrinter;
        estate_.brokenLists[6] = support::countedList({bytesOf(local)});
        estate_.updateReply = {};
    }
    std::unique_ptr<LocalPrinterPropertiesDlg> opened() {
        auto dialog = std::make_unique<LocalPrinterPropertiesDlg>(platform_, "p1");
        dialog->open();
        return dialog;
    }
};

TEST_F(LocalPrinterProperties, areThoseOfALocalPrinterOnTwoPages) {
    const auto dialog = opened();
    const localprinters::LocalPrinterPropertiesGeneralTab& general = dialog->general;

    EXPECT_EQ(estate_.requests(1).front(), "6: 02 00 70 31 00 00 00 00 08 00");
    EXPECT_EQ(dialog->name.text(), u"Copier");
    EXPECT_EQ(general.fields.physicalStatus.text(), u"Error: No Paper");
    ASSERT_EQ(dialog->tabs.pages().size(), 2U);
    EXPECT_EQ(dialog->tabs.pages()[0]->title(), u"General");
    EXPECT_EQ(dialog->tabs.pages()[1]->title(), u"Rules");
}

TEST_F(LocalPrinterProperties, areStoredAsThoseOfALocalPrinter) {
    const auto dialog = opened();
    dialog->location.userTyped(u"Quay 4");

    dialog->okButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    ASSERT_EQ(updates().size(), 1U);
    EXPECT_EQ(updates()[0].recordType, protocol::recordType::localPrinter);
    EXPECT_EQ(updates()[0].location, u"Quay 4");
}

TEST_F(LocalPrinterProperties, wantANameWithItsMisspellingBeforeTheModel) {
    const auto dialog = opened();
    dialog->name.userTyped(u"");
    choose(dialog->brandAndModel.brand, u"Acme");
    platform_.ui.expectBox(Answer::ok, u"Name field shoud not be blank!");

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is Empty!");
    EXPECT_EQ(dialog->focus(), &dialog->name);
    EXPECT_TRUE(updates().empty());
}

TEST_F(LocalPrinterProperties, wantAModel) {
    const auto dialog = opened();
    choose(dialog->brandAndModel.brand, u"Acme");
    platform_.ui.expectBox(Answer::ok, u"Please choose Brand and Model");

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
}

TEST_F(LocalPrinterProperties, cannotBeConfirmedWithoutTheRecord) {
    estate_.brokenLists[6] = support::countedList({});

    EXPECT_FALSE(opened()->okButton().enabled());
}

} // namespace
