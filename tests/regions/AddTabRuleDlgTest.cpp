#include "regions/AddTabRuleDlg.h"

#include "tests/regions/RulesFixture.h"

#include <memory>

namespace {

using protocol::AddRuleEntryRequest;
using regions::AddTabRuleDlg;

class AddTabRuleDialog : public RulesFixture {
protected:
    rules::RuleEntryPlace place(std::string parentId = {}, std::int32_t ownerNumber = 0) {
        return {.entries = entries_, .ownerId = "p1", .ownerNumber = ownerNumber, .parentId = std::move(parentId)};
    }
    std::unique_ptr<AddTabRuleDlg> opened(rules::RuleEntryPlace where,
                                          std::optional<protocol::RuleEntryRecord> edited = {}) {
        auto dialog = std::make_unique<AddTabRuleDlg>(platform_, std::move(where), std::move(edited));
        dialog->open();
        return dialog;
    }
    // Enters a rule that needs nothing but its name.
    void confirmHandover(AddTabRuleDlg& dialog) {
        samples::choose(dialog.fields.type, u"Handover");
        dialog.fields.name.userTyped(u"At the desk");
        dialog.okButton().userPressed();
    }

    std::vector<protocol::RuleEntryRecord> entries_;
};

TEST_F(AddTabRuleDialog, alwaysOffersARuleGroupFirst) {
    const auto dialog = opened(place());

    EXPECT_EQ(dialog->title(), u"Add Rule");
    EXPECT_EQ(samples::textsOf(dialog->fields.type),
              (Names{u"Rule group", u"Page limit", u"Price plan", u"Handover", u"Parse print job",
                     u"SNMP query printer", u"Client billing", u"Short Id"}));
    EXPECT_EQ(dialog->fields.type.selectedText(), u"Rule group");
}

TEST_F(AddTabRuleDialog, wantsANameWithoutAMisspelling) {
    const auto dialog = opened(place());
    platform_.ui.expectBox(platform::Answer::ok, u"Name field should not be blank!");

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(dialog->focus(), &dialog->fields.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is Empty!");
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x30U);
    EXPECT_EQ(estate_.changes(0), Strings{});
}

TEST_F(AddTabRuleDialog, leavesATypeWithoutARowAsItIs) {
    const auto dialog = opened(place(), samples::entry("e1", 5, u"Count"));
    dialog->fields.type.select(std::nullopt);

    dialog->okButton().userPressed();

    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).entry.type, 5);
}

TEST_F(AddTabRuleDialog, givesClientBillingItsNumberByName) {
    const auto dialog = opened(place());
    samples::choose(dialog->fields.type, u"Client billing");
    dialog->fields.name.userTyped(u"Bill");

    dialog->okButton().userPressed();

    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).entry.type, 7);
}

TEST_F(AddTabRuleDialog, copiesAParentIntoTheEntry) {
    auto entry = samples::entry("e1", 4, u"At the desk");
    entry.parentId = "old parent";
    const auto dialog = opened(place("parent"), entry);

    dialog->okButton().userPressed();

    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).entry.parentId, "parent");
}

TEST_F(AddTabRuleDialog, keepsTheEntrysParentWhenItHasNone) {
    auto entry = samples::entry("e1", 4, u"At the desk");
    entry.parentId = "old parent";
    const auto dialog = opened(place(), entry);

    dialog->okButton().userPressed();

    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).entry.parentId, "old parent");
}

TEST_F(AddTabRuleDialog, addsWithTheNumberTheOwnerAndTheParent) {
    const auto dialog = opened(place("parent", 42));

    confirmHandover(*dialog);

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_EQ(sent.action, 5);
    EXPECT_EQ(sent.ownerNumber, 42);
    EXPECT_EQ(sent.ownerId, "p1");
    EXPECT_EQ(sent.parentId, "parent");
    EXPECT_EQ(sent.entry.type, 4);
    EXPECT_EQ(sent.entry.name, u"At the desk");
    EXPECT_EQ(sent.entry.parentId, "parent");
}

TEST_F(AddTabRuleDialog, updatesAnEditedEntryInPlace) {
    auto entry = samples::entry("e1", 4, u"At the desk");
    const auto dialog = opened(place(), entry);
    dialog->fields.name.userTyped(u"At the counter");

    dialog->okButton().userPressed();

    entry.name = u"At the counter";
    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).action, 88);
    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).entry, entry);
}

TEST_F(AddTabRuleDialog, listsTheOwnersEntriesAndThenTheParentsWhichWinBothWithTheNumber) {
    estate_.entries["p1"] = {samples::entry("e1", 4, u"Of the owner")};
    estate_.entries["parent"] = {samples::entry("e2", 4, u"Of the parent")};
    const auto dialog = opened(place("parent", 42));

    confirmHandover(*dialog);

    EXPECT_EQ(platform_.commands(),
              (Strings{"ListAffected", "ListRuleGroups", "WriteRuleObject", "ListRuleEntries", "ListRuleEntries"}));
    EXPECT_EQ(estate_.requests(5)[3], "61: 02 00 70 31 2A 00 00 00");
    EXPECT_EQ(estate_.requests(5)[4], "61: 06 00 70 61 72 65 6E 74 2A 00 00 00");
    ASSERT_EQ(entries_.size(), 1U);
    EXPECT_EQ(entries_[0].name, u"Of the parent");
}

TEST_F(AddTabRuleDialog, listsOnlyTheOwnersEntriesWithoutAParent) {
    const auto dialog = opened(place());

    confirmHandover(*dialog);

    EXPECT_EQ(platform_.commands(), (Strings{"ListAffected", "ListRuleGroups", "WriteRuleObject", "ListRuleEntries"}));
}

TEST_F(AddTabRuleDialog, sendsARuleGroupWithTheGroupAsItsOwner) {
    const auto dialog = opened(place("p1"));
    samples::choose(dialog->fields.object.list, u"Teachers");
    dialog->fields.name.userTyped(u"Rules of teachers");

    dialog->okButton().userPressed();

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(sent.ownerId, "group2");
    EXPECT_EQ(sent.parentId, "p1");
    EXPECT_EQ(sent.entry.targetId, "group2");
}

TEST_F(AddTabRuleDialog, doesNotLoseWhomARuleAffectsWhenThatCouldNotBeRead) {
    estate_.goOffline();

    const auto dialog = opened(place(), samples::entry("e1", 4, u"At the desk"));

    EXPECT_FALSE(dialog->okButton().enabled());
    dialog->okButton().userPressed();
    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(dialog->record().affectedId, "a2");
}

TEST_F(AddTabRuleDialog, sendsNothingOnCancel) {
    const auto dialog = opened(place());
    dialog->fields.name.userTyped(u"Quota");

    dialog->cancelButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idCancel);
    EXPECT_EQ(estate_.changes(0), Strings{});
}

} // namespace
