#include "rules/PageLimitersNode.h"

#include "protocol/rules/PageLimit.h"
#include "rules/PageLimitDlg.h"
#include "tests/rules/RuleTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Key;
using rules::PageLimitDlg;

protocol::PageLimitRecord limit(std::string id, wire::WideString name) {
    protocol::PageLimitRecord record;
    record.id = std::move(id);
    record.name = std::move(name);
    record.comment = u"Comment of " + record.name;
    record.priority = 1;
    return record;
}

class PageLimiters : public RuleTree {
protected:
    PageLimiters() { estate_.limits = {limit("l1", u"Long jobs"), limit("l2", u"Color")}; }

    std::shared_ptr<rules::PageLimitersNode> node_ = standing<rules::PageLimitersNode>();
};

TEST_F(PageLimiters, areReadOneByOneWhenTheyAreShown) {
    EXPECT_TRUE(platform_.commands().empty());

    show(console_, *node_);

    EXPECT_EQ(estate_.requests(3), (Strings{"73: ", "65: 02 00 6C 31", "65: 02 00 6C 32"}));
    EXPECT_EQ(console_.titles(), (Names{u"Name", u"Comment"}));
    EXPECT_EQ(console_.columns[0].width, 200);
    EXPECT_EQ(console_.columns[1].width, 300);
    EXPECT_EQ(console_.table(), (Table{{u"Long jobs", u"Comment of Long jobs"}, {u"Color", u"Comment of Color"}}));
}

TEST_F(PageLimiters, areReadAnewWheneverTheyAreShown) {
    show(console_, *node_);
    estate_.limits = {limit("l3", u"Posters")};

    show(console_, *node_);

    EXPECT_EQ(console_.table(), (Table{{u"Posters", u"Comment of Posters"}}));
}

TEST_F(PageLimiters, areNotReadByAChangeOfTheWindow) {
    show(console_, *node_);

    show(console_, *node_, false);
    refresh(console_, *node_, node_->scopeFields().ID);

    EXPECT_EQ(platform_.commands(), (Strings{"ListPageLimits", "GetPageLimit", "GetPageLimit"}));
    EXPECT_EQ(console_.table().size(), 2U);
}

TEST_F(PageLimiters, haveNoRowsWithoutAServer) {
    show(console_, *node_);
    estate_.goOffline();

    show(console_, *node_);

    EXPECT_TRUE(console_.table().empty());
    EXPECT_EQ(console_.titles().front(), u"Name");
}

TEST_F(PageLimiters, offerToMakeEditAndRemoveThem) {
    show(console_, *node_);

    EXPECT_EQ(menuOf(console_, *node_),
              (Menu{{u"New Page Limit Rule...", u"To create a new page limit rule", 381, 0}}));
    EXPECT_EQ(menuOf(console_, *support::shownNode(console_, u"Color")),
              (Menu{{u"Edit page limit", u"To edit page limit", 372, 0},
                    {u"Remove page limit", u"To remove page limit", 373, 0}}));
}

TEST_F(PageLimiters, makeOneAndReadTheListAnew) {
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"New Page Limit Rule");
        dialog.name.userTyped(u"Posters");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(node_->Command(381, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.change<protocol::WritePageLimitRequest>(1).limit.name, u"Posters");
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
}

TEST_F(PageLimiters, readTheListAnewAfterACancelToo) {
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& dialog) { dialog.cancelButton().userPressed(); });

    node_->Command(381, DataObjectType::scope);

    EXPECT_TRUE(estate_.changes(0).empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
}

TEST_F(PageLimiters, editOneAsItWasRead) {
    show(console_, *node_);
    console_.calls.clear();
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Edit Page Limit Rule");
        dialog.name.userTyped(u"Colors");
        dialog.okButton().userPressed();
    });

    support::shownNode(console_, u"Color")->Command(372, DataObjectType::result);

    auto expected = limit("l2", u"Color");
    expected.name = u"Colors";
    EXPECT_EQ(estate_.change<protocol::WritePageLimitRequest>(1),
              (protocol::WritePageLimitRequest{.action = 2, .limit = expected}));
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(PageLimiters, removeOneAfterAQuestion) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::ok, u"Do you want to delete the selected limit rule? ");

    support::shownNode(console_, u"Color")->Command(373, DataObjectType::result);

    EXPECT_EQ(estate_.changes(1), Strings{"66: 02 00 6C 32"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::up, Key::down, Key::f5}}));
}

TEST_F(PageLimiters, keepOneWhenTheQuestionIsCancelled) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::cancel);

    EXPECT_EQ(support::shownNode(console_, u"Color")->Command(373, DataObjectType::result), Result::notDone);

    EXPECT_TRUE(estate_.changes(0).empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

// A limit that another administrator removes after the list was read and before the limit is.
TEST(PageLimitersOfAChangingServer, haveNoRowsWhenALimitHasGoneMeanwhile) {
    support::TestPlatform platform;
    support::FakeEstate estate(platform.platform().hooks);
    estate.lists[73] = [](const support::Bytes&) -> std::vector<support::Bytes> {
        return {support::hex("02 00 6C 31 02 00 41 00")};
    };
    estate.replies[65] = [](const support::Bytes&) { return support::Bytes(); };
    support::RecordingConsole console;
    const auto node = std::make_shared<rules::PageLimitersNode>(platform);
    node->scopeFields().ID = console.addScopeRow(node);

    show(console, *node);

    EXPECT_EQ(platform.failures(), Strings{"class PageLimitersNode: notification 32790: failed to get message"});
    EXPECT_TRUE(console.table().empty());
    EXPECT_EQ(console.titles(), (Names{u"Name", u"Comment"}));
}

} // namespace
