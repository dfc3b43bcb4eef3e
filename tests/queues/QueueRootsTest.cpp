#include "regions/CreateRegionDlg.h"
#include "tests/queues/QueueTrees.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Key;
using regions::CreateRegionDlg;

const Menu onlyCreateRegion{{u"Create region", u"To create a new region", 247, 0}};

class QueueRoots : public QueueTrees {};

TEST_F(QueueRoots, holdTheRegionsOfTheTopLastOfTheListFirst) {
    expandIn(console_, u"Queues");
    expandIn(followConsole_, u"Follow Print");

    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"South", u"North"}));
    EXPECT_EQ(followConsole_.childNames(followRootRow_), (Names{u"South", u"North"}));
    EXPECT_EQ(estate_.requests(2), (Strings{"0: 00 00 00 00 00 00 00", "0: 00 00 00 00 00 00 00"}));
}

TEST_F(QueueRoots, showOneColumnWithTheirRegions) {
    expandIn(console_, u"Queues");
    expandIn(followConsole_, u"Follow Print");

    show(console_, *root_);
    show(followConsole_, *followRoot_);

    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_EQ(console_.columns.front().width, 200);
    EXPECT_EQ(console_.table(), (Table{{u"South"}, {u"North"}}));
    EXPECT_EQ(followConsole_.titles(), Names{u"Region Name"});
    EXPECT_EQ(followConsole_.table(), (Table{{u"South"}, {u"North"}}));
}

TEST_F(QueueRoots, showTheSameRegionsSoThatOneMadeInATreeIsInTheOtherAfterARefresh) {
    expandIn(console_, u"Queues");
    expandIn(followConsole_, u"Follow Print");
    estate_.regions.push_back(support::region(4, 0, u"West"));

    refresh(console_, *root_, rootRow_);
    refresh(followConsole_, *followRoot_, followRootRow_);

    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"West", u"South", u"North"}));
    EXPECT_EQ(followConsole_.childNames(followRootRow_), (Names{u"West", u"South", u"North"}));
}

TEST_F(QueueRoots, offerOnlyToCreateARegion) {
    EXPECT_EQ(menuOf(console_, *root_), onlyCreateRegion);
    EXPECT_EQ(menuOf(followConsole_, *followRoot_), onlyCreateRegion);
}

TEST_F(QueueRoots, createARegionAtTheTopOfTheTreeOfPrintersAndQueues) {
    expandIn(followConsole_, u"Follow Print");
    followConsole_.calls.clear();
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"A");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(followRoot_->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 00 00 00 00 00 02 00 41 00"});
    EXPECT_EQ(followConsole_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueRoots, pressNothingWhenNoRegionIsCreated) {
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) { dialog.cancelButton().userPressed(); });

    EXPECT_EQ(root_->Command(247, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(QueueRoots, takeNoPastedRegion) {
    openNorth();

    EXPECT_EQ(queryPaste(console_, *root_, *support::nodeOf(console_, u"Harbour")), Result::notDone);
}

TEST_F(QueueRoots, offerOnlyRefresh) {
    const Strings onlyRefresh{"refresh on", "cut off", "copy off", "delete off", "rename off"};

    EXPECT_EQ(verbsOf(console_, *root_), onlyRefresh);
    EXPECT_EQ(verbsOf(followConsole_, *followRoot_), onlyRefresh);
}

} // namespace
