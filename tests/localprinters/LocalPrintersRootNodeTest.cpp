#include "tests/localprinters/LocalPrinterTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;

class LocalPrintersRoot : public LocalPrinterTree {};

TEST_F(LocalPrintersRoot, holdsTheRegionsAtTheTopOfTheTreeOfLocalPrinters) {
    expandNode(u"Local Printers");

    EXPECT_EQ(estate_.requests(1), Strings{"0: 01 00 00 00 00 00 00"});
    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"Field service", u"Home offices"}));
}

TEST_F(LocalPrintersRoot, showsOneColumnWithItsRegions) {
    expandNode(u"Local Printers");

    show(console_, *root_);

    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_EQ(console_.table(), (Table{{u"Field service"}, {u"Home offices"}}));
}

TEST_F(LocalPrintersRoot, offersToCreateARegionAndToDeleteTheLocalRegion) {
    EXPECT_EQ(menuOf(console_, *root_), (Menu{{u"Create region", u"To create a new region", 247, 0},
                                              {u"Delete local region", u"To delete region", 302, 0}}));
}

TEST_F(LocalPrintersRoot, createsARegionOfLocalPrintersAtTheTop) {
    expandNode(u"Local Printers");
    console_.calls.clear();
    expectNewRegion(u"A");

    EXPECT_EQ(root_->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 01 00 00 00 00 02 00 41 00"});
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(LocalPrintersRoot, tellsInItsOwnWordsThatItIncludesAPrinter) {
    estate_.localPrinters.push_back(support::printer("l3", 0, u"Nowhere"));
    platform_.ui.expectBox(Answer::ok, question);
    platform_.ui.expectBox(Answer::ok, u"Cannot delete as the region includes the printer");

    EXPECT_EQ(root_->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(estate_.requests(1), Strings{"6: 00 00 00 00 00 00 06 00"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Information");
    EXPECT_EQ(platform_.ui.boxes().back().style, platform::boxStyle::iconInformation);
    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(LocalPrintersRoot, asksTheServerToDeleteTheRegion0) {
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(root_->Command(302, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"45: 00 00 00 00 01"});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(LocalPrintersRoot, asksTheServerNothingWhenTheQuestionIsAnsweredWithCancel) {
    platform_.ui.expectBox(Answer::cancel, question);

    EXPECT_EQ(root_->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(LocalPrintersRoot, offersOnlyRefresh) {
    EXPECT_EQ(verbsOf(console_, *root_), (Strings{"refresh on", "cut off", "copy off", "delete off", "rename off"}));
}

} // namespace
