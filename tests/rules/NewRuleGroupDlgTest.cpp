#include "rules/NewRuleGroupDlg.h"

#include "protocol/rules/PageLimit.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "rules/AddRuleEntryDlg.h"
#include "rules/CNewRuleDialog.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"
#include "tests/rules/RuleSamples.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

namespace {

using platform::Answer;
using protocol::DeleteRuleGroupRequest;
using protocol::WriteRuleGroupRequest;
using rules::AddRuleEntryDlg;
using rules::CNewRuleDialog;
using rules::NewPricePlanDlg;
using rules::NewRuleGroupDlg;
using rules::PageLimitDlg;
using Strings = std::vector<std::string>;

class RuleGroupDialog : public ::testing::Test {
protected:
    RuleGroupDialog() {
        auto quota = samples::entry("e1", 2, u"Quota");
        quota.targetId = "limit1";
        auto prices = samples::entry("e2", 3, u"Prices");
        prices.targetId = "plan1";
        estate_.entries["g1"] = {quota, prices, samples::entry("e3", 4, u"Handing over"),
                                 samples::entry("", 4, u"Without an id")};
        estate_.limits = {samples::limit("limit1", u"Ten pages")};
        estate_.plans = {samples::plan("plan1", u"Standard"), samples::plan("plan2", u"Cheap")};
        estate_.affected = {samples::affected("a2", u"Staff")};
    }

    // An open dialog with the group "Students", which has four entries.
    std::unique_ptr<NewRuleGroupDlg> edited() {
        auto dialog = std::make_unique<NewRuleGroupDlg>(platform_, samples::group("g1", u"Students"));
        dialog->open();
        return dialog;
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
};

TEST_F(RuleGroupDialog, makesANewGroupOnTheServerBeforeAnythingIsTyped) {
    NewRuleGroupDlg dialog(platform_);

    dialog.open();

    const auto sent = estate_.change<WriteRuleGroupRequest>(1);
    EXPECT_EQ(dialog.title(), u"New Rule Group");
    EXPECT_EQ(sent.action, 1);
    EXPECT_EQ(sent.group.name, u"");
    EXPECT_EQ(sent.group.comment, u"");
    EXPECT_EQ(sent.group.extra1, u"");
    EXPECT_EQ(sent.group.extra2, u"");
    EXPECT_EQ(wire::parseUuid(sent.group.id).version(), wire::Uuid::version_random_number_based);
    EXPECT_EQ(platform_.commands(), (Strings{"WriteRuleGroup", "ListRuleEntries"}));
}

TEST_F(RuleGroupDialog, aGroupWithoutEntriesCanBeConfirmed) {
    NewRuleGroupDlg dialog(platform_);
    dialog.open();
    const auto made = estate_.change<WriteRuleGroupRequest>(1);
    dialog.name.userTyped(u"Students");

    dialog.okButton().userPressed();

    const auto sent = estate_.change<WriteRuleGroupRequest>(2);
    EXPECT_EQ(dialog.result(), forms::idOk);
    EXPECT_EQ(sent.action, 2);
    EXPECT_EQ(sent.group.id, made.group.id);
    EXPECT_EQ(sent.group.name, u"Students");
    EXPECT_EQ(sent.group.comment, u"");
}

TEST_F(RuleGroupDialog, wantsAName) {
    NewRuleGroupDlg dialog(platform_);
    dialog.open();
    platform_.ui.expectBox(Answer::ok, u"Group name can not be empty, please provide a group name");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is empty");
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x30U);
    EXPECT_EQ(estate_.changes(1).size(), 1U);
}

TEST_F(RuleGroupDialog, cancellingANewGroupWithEntriesRemovesItInOneCommand) {
    NewRuleGroupDlg dialog(platform_);
    dialog.open();
    const auto id = estate_.change<WriteRuleGroupRequest>(1).group.id;
    platform_.ui.expect<AddRuleEntryDlg>([](AddRuleEntryDlg& adder) {
        samples::choose(adder.fields.type, u"Handover");
        adder.fields.name.userTyped(u"At the desk");
        adder.okButton().userPressed();
    });
    dialog.rules.addButton.userPressed();
    EXPECT_EQ(estate_.change<protocol::AddRuleEntryRequest>(2).ownerId, id);

    dialog.cancelButton().userPressed();

    EXPECT_EQ(estate_.change<DeleteRuleGroupRequest>(3).action, 3);
    EXPECT_EQ(estate_.change<DeleteRuleGroupRequest>(3).id, id);
    EXPECT_EQ(dialog.result(), forms::idOk);
}

TEST_F(RuleGroupDialog, closingTheWindowOfANewGroupIsACancel) {
    NewRuleGroupDlg dialog(platform_);
    dialog.open();

    dialog.userCancelled();

    EXPECT_TRUE(dialog.ended());
    EXPECT_EQ(dialog.result(), forms::idOk);
    EXPECT_EQ(estate_.change<DeleteRuleGroupRequest>(2).action, 3);
}

TEST_F(RuleGroupDialog, cancellingAnEditedGroupSendsNothingAndLooksLikeOk) {
    const auto dialog = edited();

    dialog->cancelButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_EQ(platform_.commands(), Strings{"ListRuleEntries"});
}

TEST_F(RuleGroupDialog, showsAnEditedGroupWithItsEntries) {
    const auto dialog = edited();

    EXPECT_EQ(dialog->title(), u"Edit Rule Group");
    EXPECT_EQ(dialog->name.text(), u"Students");
    EXPECT_EQ(dialog->comment.text(), u"Comment of Students");
    EXPECT_EQ(dialog->name.options().limit, 64U);
    EXPECT_EQ(dialog->comment.options().limit, 255U);
    const auto& columns = dialog->rules.list.columns();
    ASSERT_EQ(columns.size(), 3U);
    EXPECT_EQ(columns[0].title, u"Rule Type");
    EXPECT_EQ(columns[0].width, 100);
    EXPECT_EQ(columns[1].title, u"Rule Name");
    EXPECT_EQ(columns[1].width, 150);
    EXPECT_EQ(columns[2].title, u"Rule Affected");
    EXPECT_EQ(columns[2].width, 200);
    ASSERT_EQ(dialog->rules.list.rows().size(), 4U);
    EXPECT_EQ(dialog->rules.list.rows()[0].cells, (std::vector<wire::WideString>{u"Type Quota", u"Quota", u"Staff"}));
    EXPECT_EQ(estate_.requests(1), Strings{"61: 02 00 67 31 00 00 00 00"});
}

TEST_F(RuleGroupDialog, updatesAnEditedGroupWithWhatItDoesNotShow) {
    const auto dialog = edited();
    dialog->name.userTyped(u"Pupils");
    dialog->comment.userTyped(u"");

    dialog->okButton().userPressed();

    auto expected = samples::group("g1", u"Students");
    expected.name = u"Pupils";
    expected.comment = u"";
    EXPECT_EQ(estate_.change<WriteRuleGroupRequest>(1).action, 2);
    EXPECT_EQ(estate_.change<WriteRuleGroupRequest>(1).group, expected);
}

TEST_F(RuleGroupDialog, editAndRemoveNeedASelectedRowWithAnId) {
    const auto dialog = edited();
    EXPECT_FALSE(dialog->rules.removeButton.enabled());
    EXPECT_FALSE(dialog->editButton.enabled());

    dialog->rules.list.userSelected(0);
    EXPECT_TRUE(dialog->rules.removeButton.enabled());
    EXPECT_TRUE(dialog->editButton.enabled());

    dialog->rules.list.userSelected(3); // without an id
    EXPECT_FALSE(dialog->rules.removeButton.enabled());
    EXPECT_FALSE(dialog->editButton.enabled());

    dialog->rules.list.userSelected(1);
    dialog->rules.list.userSelected(std::nullopt);
    EXPECT_FALSE(dialog->rules.removeButton.enabled());
    EXPECT_FALSE(dialog->editButton.enabled());
}

TEST_F(RuleGroupDialog, addsEntriesInsideTheGroupAndListsThemAgain) {
    const auto dialog = edited();
    platform_.ui.expect<AddRuleEntryDlg>([this](AddRuleEntryDlg& adder) {
        EXPECT_EQ(samples::textsOf(adder.fields.type).front(), u"Page limit");
        samples::choose(adder.fields.type, u"Handover");
        adder.fields.name.userTyped(u"At the desk");
        estate_.entries["g1"] = {samples::entry("e4", 4, u"At the desk")};
        adder.okButton().userPressed();
    });

    dialog->rules.addButton.userPressed();

    EXPECT_EQ(estate_.changes(1).back().substr(0, 36), "64: 05 00 00 00 00 00 00 02 00 67 31");
    ASSERT_EQ(dialog->rules.list.rows().size(), 1U);
    EXPECT_EQ(dialog->rules.list.rows()[0].cells[1], u"At the desk");
    EXPECT_EQ(platform_.commands().back(), "ListRuleEntries");
}

TEST_F(RuleGroupDialog, removesAnEntryByItsIdAndTypeAfterAQuestion) {
    const auto dialog = edited();
    dialog->rules.list.userSelected(2);
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this rule entry?");

    dialog->rules.removeButton.userPressed();

    EXPECT_EQ(estate_.changes(1), Strings{"62: 03 02 00 65 33 04 00"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
    EXPECT_EQ(platform_.commands().back(), "ListRuleEntries");
    EXPECT_FALSE(dialog->rules.removeButton.enabled());
    EXPECT_EQ(dialog->rules.list.selection(), std::nullopt);
}

TEST_F(RuleGroupDialog, keepsAnEntryWhenTheQuestionIsCancelled) {
    const auto dialog = edited();
    dialog->rules.list.userSelected(2);
    platform_.ui.expectBox(Answer::cancel);

    dialog->rules.removeButton.userPressed();

    EXPECT_EQ(platform_.commands(), Strings{"ListRuleEntries"});
    EXPECT_EQ(dialog->rules.list.selection(), 2U);
}

TEST_F(RuleGroupDialog, editsTheLimitThatAnEntryPointsAt) {
    const auto dialog = edited();
    dialog->rules.list.userSelected(0);
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& editor) {
        EXPECT_EQ(editor.title(), u"Edit Page Limit Rule");
        EXPECT_EQ(editor.name.text(), u"Ten pages");
        editor.okButton().userPressed();
    });

    dialog->editButton.userPressed();

    EXPECT_EQ(estate_.change<protocol::WritePageLimitRequest>(1).action, 2);
    EXPECT_EQ(estate_.change<protocol::WritePageLimitRequest>(1).limit.id, "limit1");
    EXPECT_EQ(dialog->rules.list.selection(), 0U);
    EXPECT_TRUE(dialog->editButton.enabled());
}

TEST_F(RuleGroupDialog, editsALimitCalledLikeTheEntryWhenItPointsAtNone) {
    estate_.entries["g1"] = {samples::entry("e1", 2, u"Quota")};
    const auto dialog = edited();
    dialog->rules.list.userSelected(0);
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& editor) {
        EXPECT_EQ(editor.title(), u"Edit Page Limit Rule");
        EXPECT_EQ(editor.name.text(), u"Quota");
        editor.cancelButton().userPressed();
    });

    dialog->editButton.userPressed();

    EXPECT_EQ(estate_.changes(0), Strings{});
}

TEST_F(RuleGroupDialog, doesNotEditALimitThatHasGone) {
    estate_.limits.clear();
    const auto dialog = edited();
    dialog->rules.list.userSelected(0);

    dialog->editButton.userPressed();

    EXPECT_EQ(platform_.failures().size(), 1U);
    EXPECT_TRUE(platform_.ui.forms().empty());
    EXPECT_EQ(dialog->rules.list.rows().size(), 4U);
}

TEST_F(RuleGroupDialog, editsThePlanThatAnEntryPointsAtAndTheEntryWithIt) {
    const auto dialog = edited();
    dialog->rules.list.userSelected(1);
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& editor) {
        EXPECT_EQ(editor.title(), u"Edit Priceplan");
        EXPECT_EQ(editor.name.text(), u"Standard");
        editor.okButton().userPressed();
    });

    dialog->editButton.userPressed();

    EXPECT_EQ(estate_.requests(2)[1], "69: 05 00 70 6C 61 6E 31"); // only this plan
    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(2).entry, estate_.entries["g1"][1]);
}

TEST_F(RuleGroupDialog, opensNothingForAPlanThatHasGone) {
    estate_.plans.clear();
    const auto dialog = edited();
    dialog->rules.list.userSelected(1);

    dialog->editButton.userPressed();

    EXPECT_TRUE(platform_.ui.forms().empty());
    EXPECT_TRUE(platform_.failures().empty());
}

TEST_F(RuleGroupDialog, editsAllOtherEntriesThemselves) {
    const auto dialog = edited();
    dialog->rules.list.userSelected(2);
    platform_.ui.expect<CNewRuleDialog>([this](CNewRuleDialog& editor) {
        EXPECT_EQ(editor.name.text(), u"Handing over");
        EXPECT_EQ(editor.affected.list.selectedText(), u"Staff");
        editor.comment.userTyped(u"At the desk");
        estate_.entries["g1"].erase(estate_.entries["g1"].begin());
        editor.okButton().userPressed();
    });

    dialog->editButton.userPressed();

    const auto sent = estate_.change<protocol::UpdateRuleEntryRequest>(1);
    EXPECT_EQ(sent.entry.id, "e3");
    EXPECT_EQ(sent.entry.comment, u"At the desk");
    EXPECT_EQ(dialog->rules.list.rows().size(), 3U);
    EXPECT_EQ(dialog->rules.list.selection(), 1U); // the same entry as before
}

TEST_F(RuleGroupDialog, showsAnEmptyListWhenTheGroupCouldNotBeMade) {
    estate_.goOffline();
    NewRuleGroupDlg dialog(platform_);

    dialog.open();

    EXPECT_TRUE(dialog.rules.list.rows().empty());
    EXPECT_TRUE(platform_.ui.boxes().empty());
    EXPECT_TRUE(platform_.failures().empty());
}

} // namespace
