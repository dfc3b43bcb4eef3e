#include "rules/CNewRuleDialog.h"

#include "protocol/rules/Affected.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/AffectedDlg.h"
#include "tests/rules/RuleSamples.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

namespace {

using platform::Answer;
using protocol::AddRuleEntryRequest;
using protocol::UpdateRuleEntryRequest;
using rules::AffectedDlg;
using rules::CNewRuleDialog;
using Names = std::vector<wire::WideString>;
using Strings = std::vector<std::string>;

class NewRuleDialog : public ::testing::Test {
protected:
    NewRuleDialog() {
        estate_.affected = {samples::affected("a1", u"Guests"), samples::affected("a2", u"Staff"),
                            samples::affected("a3", u"Pupils")};
    }

    rules::RuleEntryPlace place(std::string parentId = {}) {
        return {.entries = entries_, .ownerId = "g1", .ownerNumber = 0, .parentId = std::move(parentId)};
    }
    // Fills in every field.
    void fill(CNewRuleDialog& dialog) {
        dialog.open();
        dialog.name.userTyped(u"Billing");
        dialog.comment.userTyped(u"By client");
    }
    void expectRefusal(CNewRuleDialog& dialog, const wire::WideString& text) {
        platform_.ui.expectBox(Answer::ok, text);
        dialog.okButton().userPressed();
        EXPECT_FALSE(dialog.ended());
        EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is Empty!");
        EXPECT_EQ(estate_.changes(0), Strings{});
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
    std::vector<protocol::RuleEntryRecord> entries_;
};

TEST_F(NewRuleDialog, offersFiveTypesAndStartsWithTheLast) {
    CNewRuleDialog dialog(platform_, place());

    dialog.open();

    EXPECT_EQ(dialog.title(), u"New Rule");
    EXPECT_EQ(samples::textsOf(dialog.type),
              (Names{u"Page limit", u"Price plan", u"Parse print job", u"SNMP query printer", u"Client billing"}));
    EXPECT_EQ(dialog.type.selectedText(), u"Client billing");
    EXPECT_EQ(dialog.name.options().limit, 64U);
    EXPECT_EQ(dialog.comment.options().limit, 255U);
}

TEST_F(NewRuleDialog, theIndexOfAnAffectedRowIsThatOfItsRecord) {
    CNewRuleDialog dialog(platform_, place());
    fill(dialog);
    EXPECT_EQ(samples::textsOf(dialog.affected.list), (Names{u"Guests", u"Staff", u"Pupils", u"<New>"}));
    EXPECT_EQ(dialog.affected.list.selection(), 0U);

    dialog.affected.list.userSelected(1);
    dialog.okButton().userPressed();

    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).entry.affectedId, "a2");
    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).entry.affectedName, u"Staff");
}

TEST_F(NewRuleDialog, placesANewEntryWithTheNumberNought) {
    CNewRuleDialog dialog(platform_, place("parent"));
    fill(dialog);

    dialog.okButton().userPressed();

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(dialog.result(), forms::idOk);
    EXPECT_EQ(sent.action, 5);
    EXPECT_EQ(sent.ownerNumber, 0);
    EXPECT_EQ(sent.parentId, "parent");
    EXPECT_EQ(sent.ownerId, "g1");
    EXPECT_EQ(sent.entry.type, 7);
    EXPECT_EQ(sent.entry.typeText, u"");
    EXPECT_EQ(sent.entry.name, u"Billing");
    EXPECT_EQ(sent.entry.comment, u"By client");
    EXPECT_EQ(sent.entry.parentId, "parent");
    EXPECT_EQ(sent.entry.targetId, "");
    EXPECT_EQ(wire::parseUuid(sent.entry.id).version(), wire::Uuid::version_random_number_based);
}

TEST_F(NewRuleDialog, givesEveryLabelItsType) {
    const std::vector<std::uint8_t> types{2, 3, 5, 6, 7};
    for (std::size_t row = 0; row < types.size(); ++row) {
        CNewRuleDialog dialog(platform_, place());
        fill(dialog);
        dialog.type.userSelected(row);

        dialog.okButton().userPressed();

        EXPECT_EQ(estate_.change<AddRuleEntryRequest>(row + 1).entry.type, types[row]);
    }
}

TEST_F(NewRuleDialog, anEditedEntryGetsTheTypeThatTheListShowsAndNotItsOwn) {
    auto entry = samples::entry("e1", 4, u"Handing over");
    entry.comment = u"At the desk";
    entry.targetId = "kept";
    CNewRuleDialog dialog(platform_, place(), entry);
    dialog.open();
    EXPECT_EQ(dialog.type.selectedText(), u"Client billing");

    dialog.okButton().userPressed();

    entry.type = 7;
    EXPECT_EQ(estate_.change<UpdateRuleEntryRequest>(1).action, 88);
    EXPECT_EQ(estate_.change<UpdateRuleEntryRequest>(1).entry, entry);
}

TEST_F(NewRuleDialog, showsNameCommentAndWhomAnEditedEntryAffects) {
    auto entry = samples::entry("e1", 7, u"Billing");
    entry.comment = u"By client";
    CNewRuleDialog dialog(platform_, place(), entry);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"New Rule");
    EXPECT_EQ(dialog.name.text(), u"Billing");
    EXPECT_EQ(dialog.comment.text(), u"By client");
    EXPECT_EQ(dialog.affected.list.selectedText(), u"Staff");
}

TEST_F(NewRuleDialog, selectsTheFirstWhenTheOneAffectedHasGone) {
    auto entry = samples::entry("e1", 7, u"Billing");
    entry.affectedId = "gone";
    CNewRuleDialog dialog(platform_, place(), entry);

    dialog.open();

    EXPECT_EQ(dialog.affected.list.selection(), 0U);
}

TEST_F(NewRuleDialog, wantsANameWithItsMisspelling) {
    CNewRuleDialog dialog(platform_, place());
    dialog.open();

    expectRefusal(dialog, u"Name field shoud not be blank!");

    EXPECT_EQ(dialog.focus(), &dialog.name);
}

TEST_F(NewRuleDialog, wantsACommentWithItsMisspelling) {
    CNewRuleDialog dialog(platform_, place());
    dialog.open();
    dialog.name.userTyped(u"Billing");

    expectRefusal(dialog, u"Comment field shoud not be blank!");

    EXPECT_EQ(dialog.focus(), &dialog.comment);
}

TEST_F(NewRuleDialog, wantsSomebodyWhomItAffects) {
    estate_.affected.clear();
    CNewRuleDialog dialog(platform_, place());
    fill(dialog);
    EXPECT_EQ(dialog.affected.list.selectedText(), u"<New>");

    expectRefusal(dialog, u"Affected field should not be blank!");

    EXPECT_EQ(dialog.focus(), &dialog.affected.list);
}

TEST_F(NewRuleDialog, aHandoverThatNeededOnlyANameWhenItWasMadeNeedsACommentAndSomebodyAffectedNow) {
    estate_.affected.clear();
    auto entry = samples::entry("e1", 4, u"At the desk");
    entry.affectedId.clear();
    entry.affectedName.clear();
    CNewRuleDialog dialog(platform_, place(), entry);
    dialog.open();

    expectRefusal(dialog, u"Comment field shoud not be blank!");
    dialog.comment.userTyped(u"By the porter");
    expectRefusal(dialog, u"Affected field should not be blank!");
}

TEST_F(NewRuleDialog, readsTheEntriesOfTheOwnerAndThenThoseOfTheParentWhichWin) {
    estate_.entries["g1"] = {samples::entry("e1", 7, u"Of the owner")};
    estate_.entries["parent"] = {samples::entry("e2", 7, u"Of the parent")};
    CNewRuleDialog dialog(platform_, place("parent"));
    fill(dialog);

    dialog.okButton().userPressed();

    EXPECT_EQ(platform_.commands(), (Strings{"ListAffected", "WriteRuleObject", "ListRuleEntries", "ListRuleEntries"}));
    EXPECT_EQ(estate_.requests(4)[2], "61: 02 00 67 31 00 00 00 00");
    ASSERT_EQ(entries_.size(), 1U);
    EXPECT_EQ(entries_[0].name, u"Of the parent");
}

TEST_F(NewRuleDialog, deletesTheFirstOfThoseAffected) {
    CNewRuleDialog dialog(platform_, place());
    dialog.open();
    dialog.affected.list.userSelected(0);
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this Affected group?");

    dialog.affected.deleteButton.userPressed();

    EXPECT_EQ(estate_.change<protocol::DeleteAffectedRequest>(1).id, "a1");
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
}

TEST_F(NewRuleDialog, editsTheFirstOfThoseAffected) {
    CNewRuleDialog dialog(platform_, place());
    dialog.open();
    platform_.ui.expect<AffectedDlg>([](AffectedDlg& editor) {
        EXPECT_EQ(editor.name.text(), u"Guests");
        editor.cancelButton().userPressed();
    });

    dialog.affected.editButton.userPressed();

    EXPECT_EQ(dialog.affected.list.selectedText(), u"Guests");
}

TEST_F(NewRuleDialog, aCancelledNewPartyLeavesTheFirstSelected) {
    CNewRuleDialog dialog(platform_, place());
    dialog.open();
    dialog.affected.list.userSelected(2);
    platform_.ui.expect<AffectedDlg>([](AffectedDlg& editor) { editor.cancelButton().userPressed(); });

    samples::choose(dialog.affected.list, u"<New>");

    EXPECT_EQ(dialog.affected.list.selection(), 0U);
}

TEST_F(NewRuleDialog, sendsNothingOnCancel) {
    CNewRuleDialog dialog(platform_, place());
    fill(dialog);

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idCancel);
    EXPECT_EQ(platform_.commands(), Strings{"ListAffected"});
}

} // namespace
