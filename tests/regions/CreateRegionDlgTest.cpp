#include "regions/CreateRegionDlg.h"

#include "client/CQVXAdminClassProperties.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using regions::CreateRegionDlg;
using Strings = std::vector<std::string>;

class CreateRegionDialog : public ::testing::Test {
protected:
    support::TestPlatform platform_;
    support::FakeEstate estate_;
};

TEST_F(CreateRegionDialog, isCalledCreateRegion) {
    const CreateRegionDlg dialog(platform_, 0, CreateRegionDlg::Mode::printerTree);

    EXPECT_EQ(dialog.title(), u"Create Region");
    EXPECT_EQ(dialog.name.label(), u"Region Name");
}

TEST_F(CreateRegionDialog, startsWithOkDisabled) {
    CreateRegionDlg dialog(platform_, 0, CreateRegionDlg::Mode::printerTree);

    dialog.open();

    EXPECT_FALSE(dialog.okButton().enabled());
}

TEST_F(CreateRegionDialog, enablesOkWhenTheNameChanges) {
    CreateRegionDlg dialog(platform_, 0, CreateRegionDlg::Mode::printerTree);
    dialog.open();

    dialog.name.userTyped(u"N");

    EXPECT_TRUE(dialog.okButton().enabled());
}

TEST_F(CreateRegionDialog, makesARegionOfThePrinterTreeAsKind0) {
    CreateRegionDlg dialog(platform_, 7, CreateRegionDlg::Mode::printerTree);
    dialog.open();
    dialog.name.userTyped(u"N\u00F6");

    dialog.okButton().userPressed();

    EXPECT_EQ(estate_.requests(1), Strings{"1: 00 07 00 00 00 04 00 4E 00 F6 00"});
    EXPECT_TRUE(dialog.ended());
    EXPECT_EQ(dialog.result(), 1);
}

TEST_F(CreateRegionDialog, makesARegionOfTheLocalPrinterTreeAsKind1) {
    CreateRegionDlg dialog(platform_, 0, CreateRegionDlg::Mode::localPrinterTree);
    dialog.open();
    dialog.name.userTyped(u"A");

    dialog.okButton().userPressed();

    EXPECT_EQ(estate_.requests(1), Strings{"1: 01 00 00 00 00 02 00 41 00"});
}

TEST_F(CreateRegionDialog, sendsAnEmptyNameAsItIs) {
    CreateRegionDlg dialog(platform_, 7, CreateRegionDlg::Mode::printerTree);
    dialog.open();
    dialog.name.userTyped(u"A");
    dialog.name.userTyped(u"");

    dialog.okButton().userPressed();

    EXPECT_EQ(estate_.requests(1), Strings{"1: 00 07 00 00 00 00 00"});
}

TEST_F(CreateRegionDialog, sendsNothingOnCancel) {
    CreateRegionDlg dialog(platform_, 7, CreateRegionDlg::Mode::printerTree);
    dialog.open();

    dialog.cancelButton().userPressed();

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_EQ(dialog.result(), 2);
}

TEST_F(CreateRegionDialog, endsWithoutAWordWhenTheServerCannotBeReached) {
    estate_.goOffline();
    CreateRegionDlg dialog(platform_, 7, CreateRegionDlg::Mode::printerTree);
    dialog.open();
    dialog.name.userTyped(u"A");

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), 1);
    EXPECT_TRUE(platform_.ui.boxes().empty());
    EXPECT_TRUE(platform_.failures().empty());
}

} // namespace
