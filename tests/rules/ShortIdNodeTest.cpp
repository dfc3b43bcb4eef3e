#include "rules/ShortIdNode.h"

#include "protocol/rules/ShortId.h"
#include "rules/ShortIdDlg.h"
#include "tests/rules/RuleTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Key;
using rules::ShortIdDlg;

const wire::Uuid lobbyId = wire::parseUuid("00000000-0000-4000-8000-000000000001");

protocol::ShortIdRecord shortId(const wire::Uuid& id, wire::WideString name) {
    protocol::ShortIdRecord record;
    record.id = id;
    record.name = std::move(name);
    record.comment = u"Comment of " + record.name;
    return record;
}

class ShortIds : public RuleTree {
protected:
    ShortIds() {
        estate_.shortIds = {shortId(lobbyId, u"Lobby"),
                            shortId(wire::parseUuid("00000000-0000-4000-8000-000000000002"), u"Office")};
    }

    std::shared_ptr<rules::ShortIdNode> node_ = standing<rules::ShortIdNode>();
};

TEST_F(ShortIds, areReadWhenTheyAreShownInTheOrderOfTheServer) {
    EXPECT_TRUE(platform_.commands().empty());

    show(console_, *node_);

    EXPECT_EQ(platform_.commands(), Strings{"ListShortIds"});
    EXPECT_EQ(console_.titles(), (Names{u"Name", u"Comment"}));
    EXPECT_EQ(console_.columns[0].width, 200);
    EXPECT_EQ(console_.columns[1].width, 300);
    EXPECT_EQ(console_.table(), (Table{{u"Lobby", u"Comment of Lobby"}, {u"Office", u"Comment of Office"}}));
}

TEST_F(ShortIds, areReadAnewWheneverTheyAreShown) {
    show(console_, *node_);
    estate_.shortIds.pop_back();

    show(console_, *node_);

    EXPECT_EQ(console_.table().size(), 1U);
}

TEST_F(ShortIds, offerToMakeEditAndRemoveThem) {
    show(console_, *node_);

    EXPECT_EQ(menuOf(console_, *node_), (Menu{{u"New Short id Rule...", u"To create a new short id rule", 465, 0}}));
    EXPECT_EQ(menuOf(console_, *support::shownNode(console_, u"Lobby")),
              (Menu{{u"Edit Short ID rule", u"To edit Short ID rule", 372, 0},
                    {u"Remove Short ID rule", u"To remove Short ID rule", 373, 0}}));
}

TEST_F(ShortIds, makeOneWhichStandsInTheListAtOnce) {
    show(console_, *node_);
    console_.calls.clear();
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"New Short Id Rule");
        dialog.name.userTyped(u"Hall");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(node_->Command(465, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.change<protocol::AddShortIdRequest>(1).shortId.name, u"Hall");
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
    refresh(console_, *node_, 1);
    EXPECT_EQ(console_.table().back(), (Names{u"Hall", u""}));
}

TEST_F(ShortIds, makeNoneOnCancelAndReadTheListAnewAllTheSame) {
    show(console_, *node_);
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& dialog) { dialog.cancelButton().userPressed(); });

    node_->Command(465, DataObjectType::scope);

    refresh(console_, *node_, 1);
    EXPECT_EQ(console_.table().size(), 2U);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
}

TEST_F(ShortIds, editOneAsItWasRead) {
    show(console_, *node_);
    console_.calls.clear();
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Edit Short Id Rule");
        dialog.name.userTyped(u"Entrance");
        dialog.okButton().userPressed();
    });

    support::shownNode(console_, u"Lobby")->Command(372, DataObjectType::result);

    auto expected = shortId(lobbyId, u"Lobby");
    expected.name = u"Entrance";
    EXPECT_EQ(estate_.change<protocol::UpdateShortIdRequest>(1).shortId, expected);
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(ShortIds, removeOneAfterAQuestion) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::ok, u"Do you want to delete the selected Short ID rule? ");

    support::shownNode(console_, u"Lobby")->Command(373, DataObjectType::result);

    EXPECT_EQ(estate_.changes(1),
              Strings{"82: 24 00 30 30 30 30 30 30 30 30 2D 30 30 30 30 2D 34 30 30 30 2D 38 30 30 30 2D 30 30 30 30 "
                      "30 30 30 30 30 30 30 31"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::up, Key::down, Key::f5}}));
}

TEST_F(ShortIds, keepOneWhenTheQuestionIsCancelled) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::cancel);

    EXPECT_EQ(support::shownNode(console_, u"Lobby")->Command(373, DataObjectType::result), Result::notDone);

    EXPECT_TRUE(estate_.changes(0).empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

} // namespace
