#include "rules/MessageControl.h"

#include "forms/Form.h"
#include "protocol/rules/UserMessage.h"
#include "rules/NewMessageDlg.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using protocol::DeleteUserMessageRequest;
using rules::MessageControl;
using rules::NewMessageDlg;
using Names = std::vector<wire::WideString>;

const wire::Uuid ownMessageId = wire::parseUuid("00000000-0000-4000-8000-000000000001");
const wire::Uuid colorId = wire::parseUuid("00000000-0000-4000-8000-000000000002");

protocol::UserMessageRecord message(const wire::Uuid& id, wire::WideString name, bool builtIn = false) {
    protocol::UserMessageRecord record;
    record.id = id;
    record.name = std::move(name);
    record.builtIn = builtIn;
    return record;
}

class Owner final : public forms::Form {
public:
    Owner(platform::Platform& platform, Names extraItems)
        : Form(platform, u"Owner"), control(*this, std::move(extraItems)) {}

    MessageControl control;
};

class Messages : public ::testing::Test {
protected:
    Messages() { estate_.messages = {message(ownMessageId, u"Quota", true), message(colorId, u"Color")}; }

    Names rows() const {
        Names names;
        for (const auto& item : control_.list.items()) {
            names.push_back(item.text);
        }
        return names;
    }

    void expectButtons(bool edit, bool remove) const {
        EXPECT_EQ(control_.editButton.enabled(), edit);
        EXPECT_EQ(control_.deleteButton.enabled(), remove);
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
    Owner owner_{platform_, {u"<New>", u"<Default>"}};
    MessageControl& control_ = owner_.control;
};

TEST_F(Messages, standInTheOrderOfTheServerWithTheExtraItemsBelowTheLastOneFirst) {
    control_.fill(std::nullopt);

    EXPECT_EQ(rows(), (Names{u"Quota", u"Color", u"<Default>", u"<New>"}));
    EXPECT_EQ(control_.messages(), estate_.messages);
}

TEST_F(Messages, areListedOnceHoweverOftenTheyAreRead) {
    control_.fill(std::nullopt);
    control_.fill(std::nullopt);

    EXPECT_EQ(rows().size(), 4U);
}

TEST_F(Messages, theOneAskedForIsSelected) {
    control_.fill(ownMessageId);

    EXPECT_EQ(control_.list.selectedText(), u"Quota");
    EXPECT_EQ(control_.selectedId(), ownMessageId);
}

TEST_F(Messages, theLastOneIsSelectedWhenNoneOrAnUnknownOneIsAskedFor) {
    control_.fill(std::nullopt);
    EXPECT_EQ(control_.list.selectedText(), u"Color");

    control_.fill(wire::parseUuid("00000000-0000-4000-8000-000000000009"));
    EXPECT_EQ(control_.list.selectedText(), u"Color");
}

TEST_F(Messages, aBuiltInOneCanBeEditedButNotDeleted) {
    control_.fill(ownMessageId);

    expectButtons(true, false);
}

TEST_F(Messages, othersCanBeEditedAndDeleted) {
    control_.fill(colorId);

    expectButtons(true, true);
}

TEST_F(Messages, extraItemsOfferNothingToEditOrDelete) {
    control_.fill(colorId);

    control_.list.userSelected(2);

    expectButtons(false, false);
    EXPECT_EQ(control_.selectedId(), std::nullopt);
}

TEST_F(Messages, aRowThatIsNotThereChangesNoButton) {
    control_.fill(colorId);

    control_.updateButtons(4);
    control_.updateButtons(std::nullopt);

    expectButtons(true, true);
}

TEST_F(Messages, withNoRecordsTheListHoldsOnlyTheExtraItemsAndTheButtonsStayAsTheyWere) {
    control_.fill(ownMessageId);
    estate_.messages.clear();

    control_.fill(ownMessageId);

    EXPECT_EQ(rows(), (Names{u"<Default>", u"<New>"}));
    EXPECT_EQ(control_.list.selection(), std::nullopt);
    expectButtons(true, false);
    control_.list.userSelected(0);
    expectButtons(true, false);
    control_.editButton.userPressed();
    control_.deleteButton.userPressed();
    EXPECT_EQ(platform_.commands(), (std::vector<std::string>{"ListUserMessages", "ListUserMessages"}));
}

TEST_F(Messages, newMakesOneAndSelectsIt) {
    control_.fill(std::nullopt);
    platform_.ui.expect<NewMessageDlg>([this](NewMessageDlg& dialog) {
        dialog.name.userTyped(u"Fresh");
        dialog.okButton().userPressed();
        estate_.changes(1);
        estate_.messages.insert(estate_.messages.begin(), dialog.record());
    });

    control_.list.userSelected(3);

    EXPECT_EQ(rows(), (Names{u"Fresh", u"Quota", u"Color", u"<Default>", u"<New>"}));
    EXPECT_EQ(control_.list.selectedText(), u"Fresh");
    expectButtons(true, true);
}

TEST_F(Messages, newStaysSelectedWhenItIsCancelled) {
    control_.fill(std::nullopt);
    platform_.ui.expect<NewMessageDlg>([](NewMessageDlg& dialog) { dialog.cancelButton().userPressed(); });

    control_.list.userSelected(3);

    EXPECT_EQ(control_.list.selectedText(), u"<New>");
    expectButtons(false, false);
    EXPECT_EQ(platform_.commands().size(), 1U);
}

TEST_F(Messages, theOwnerHearsOfASelectionOnceANewOneStandsInTheList) {
    control_.fill(std::nullopt);
    std::vector<wire::WideString> heard;
    control_.onSelect = [&] { heard.push_back(control_.list.selectedText()); };
    platform_.ui.expect<NewMessageDlg>([](NewMessageDlg& dialog) {
        dialog.name.userTyped(u"Fresh");
        dialog.okButton().userPressed();
    });

    control_.list.userSelected(0);
    control_.list.userSelected(3);

    EXPECT_EQ(heard, (Names{u"Quota", u"Color"}));
}

TEST_F(Messages, editShowsTheSelectedOneAndSelectsItAgain) {
    control_.fill(ownMessageId);
    platform_.ui.expect<NewMessageDlg>([](NewMessageDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Edit Message");
        EXPECT_EQ(dialog.name.text(), u"Quota");
        dialog.okButton().userPressed();
    });

    control_.editButton.userPressed();

    EXPECT_EQ(control_.list.selectedText(), u"Quota");
    EXPECT_EQ(platform_.commands(),
              (std::vector<std::string>{"ListUserMessages", "WriteUserMessage", "ListUserMessages"}));
}

TEST_F(Messages, deleteRemovesAtOnceWithNoConfirmation) {
    control_.fill(colorId);

    control_.deleteButton.userPressed();

    EXPECT_EQ(estate_.change<DeleteUserMessageRequest>(1).action, 3);
    EXPECT_EQ(estate_.change<DeleteUserMessageRequest>(1).id, colorId);
    EXPECT_TRUE(platform_.ui.boxes().empty());
    EXPECT_EQ(platform_.commands().back(), "ListUserMessages");
}

TEST_F(Messages, oneWithoutANameIsNeitherEditedNorDeletedNorChosen) {
    estate_.messages = {message(ownMessageId, u"")};
    control_.fill(ownMessageId);
    expectButtons(true, true);

    control_.editButton.userPressed();
    control_.deleteButton.userPressed();

    EXPECT_EQ(platform_.commands().size(), 1U);
    EXPECT_EQ(control_.selectedId(), std::nullopt);
}

TEST_F(Messages, areNoneAndNotKnownWithoutAConnection) {
    EXPECT_FALSE(control_.known());
    control_.fill(ownMessageId);
    EXPECT_TRUE(control_.known());
    estate_.goOffline();

    control_.fill(ownMessageId);

    EXPECT_EQ(rows(), (Names{u"<Default>", u"<New>"}));
    EXPECT_TRUE(control_.messages().empty());
    EXPECT_FALSE(control_.known());
}

} // namespace
