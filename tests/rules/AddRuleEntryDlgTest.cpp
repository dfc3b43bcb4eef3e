#include "rules/AddRuleEntryDlg.h"

#include "protocol/rules/Affected.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/AffectedDlg.h"
#include "tests/rules/AddRuleFixture.h"

namespace {

using protocol::AddRuleEntryRequest;
using rules::AffectedDlg;

class AddRuleDialog : public AddRuleFixture {};

TEST_F(AddRuleDialog, offersNoRuleGroupInsideARuleGroup) {
    const auto dialog = inGroup();

    EXPECT_EQ(dialog->title(), u"Add Rule");
    EXPECT_EQ(samples::textsOf(dialog->fields.type),
              (Names{u"Page limit", u"Price plan", u"Handover", u"Parse print job", u"SNMP query printer",
                     u"Client billing", u"Short Id"}));
    EXPECT_EQ(dialog->fields.type.selectedText(), u"Page limit");
    EXPECT_EQ(dialog->fields.name.options().limit, 64U);
    EXPECT_EQ(dialog->fields.comment.options().limit, 255U);
}

TEST_F(AddRuleDialog, offersARuleGroupFirstOnARegion) {
    const auto dialog = onRegion();

    EXPECT_EQ(samples::textsOf(dialog->fields.type).front(), u"Rule group");
    EXPECT_EQ(dialog->fields.type.selectedText(), u"Rule group");
    EXPECT_EQ(dialog->fields.type.items().size(), 8U);
}

TEST_F(AddRuleDialog, readsThoseAffectedBeforeTheObjects) {
    inGroup();

    EXPECT_EQ(estate_.requests(2), (Strings{"59: 00 00", "73: "}));
}

TEST_F(AddRuleDialog, aRuleOfTypeHandoverNeedsNothingButAName) {
    const auto dialog = inGroup();
    samples::choose(dialog->fields.type, u"Handover");
    dialog->fields.name.userTyped(u"At the desk");

    dialog->okButton().userPressed();

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_EQ(sent.entry.type, 4);
    EXPECT_EQ(sent.entry.name, u"At the desk");
    EXPECT_EQ(sent.entry.comment, u"");
    EXPECT_EQ(sent.entry.affectedId, "");
    EXPECT_EQ(sent.entry.affectedName, u"");
    EXPECT_EQ(sent.entry.targetId, "");
    EXPECT_EQ(wire::parseUuid(sent.entry.id).version(), wire::Uuid::version_random_number_based);
}

TEST_F(AddRuleDialog, givesEveryTypeWithoutAnObjectItsNumber) {
    const std::vector<std::pair<wire::WideString, std::uint8_t>> types{
        {u"Handover", 4}, {u"Parse print job", 5}, {u"SNMP query printer", 6}, {u"Client billing", 7}};
    for (std::size_t place = 0; place < types.size(); ++place) {
        const auto dialog = inGroup();
        samples::choose(dialog->fields.type, types[place].first);
        dialog->fields.name.userTyped(u"Rule");

        dialog->okButton().userPressed();

        EXPECT_EQ(estate_.change<AddRuleEntryRequest>(place + 1).entry.type, types[place].second);
    }
}

TEST_F(AddRuleDialog, wantsANameWithItsMisspelling) {
    const auto dialog = inGroup();

    expectRefusal(*dialog, u"Name field shoud not be blank!");

    EXPECT_EQ(dialog->focus(), &dialog->fields.name);
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x30U);
}

TEST_F(AddRuleDialog, placesAnEntryInAGroupByItsId) {
    const auto dialog = inGroup("parent");
    dialog->fields.name.userTyped(u"Quota");
    dialog->fields.comment.userTyped(u"For all");

    dialog->okButton().userPressed();

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(sent.action, 5);
    EXPECT_EQ(sent.ownerNumber, 0);
    EXPECT_EQ(sent.parentId, "parent");
    EXPECT_EQ(sent.ownerId, "g1");
    EXPECT_EQ(sent.entry.type, 2);
    EXPECT_EQ(sent.entry.comment, u"For all");
    EXPECT_EQ(sent.entry.parentId, "parent");
}

TEST_F(AddRuleDialog, placesAnEntryOnARegionByItsNumberAndWithoutAParent) {
    const auto dialog = onRegion("parent");
    samples::choose(dialog->fields.type, u"Handover");
    dialog->fields.name.userTyped(u"At the desk");

    dialog->okButton().userPressed();

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(sent.ownerNumber, 42);
    EXPECT_EQ(sent.parentId, "");
    EXPECT_EQ(sent.ownerId, "");
    EXPECT_EQ(sent.entry.parentId, "parent");
}

TEST_F(AddRuleDialog, placesARuleGroupOnARegionWithTheGroupAsOwner) {
    const auto dialog = onRegion();
    EXPECT_EQ(dialog->fields.object.list.selectedText(), u"Students");
    samples::choose(dialog->fields.object.list, u"Teachers");
    dialog->fields.name.userTyped(u"Rules of teachers");

    dialog->okButton().userPressed();

    const auto sent = estate_.change<AddRuleEntryRequest>(1);
    EXPECT_EQ(sent.ownerNumber, 42);
    EXPECT_EQ(sent.ownerId, "group2");
    EXPECT_EQ(sent.entry.type, 1);
    EXPECT_EQ(sent.entry.targetId, "group2");
    EXPECT_EQ(estate_.requests(4)[3], "61: 06 00 67 72 6F 75 70 32 00 00 00 00"); // the entries of the group
}

TEST_F(AddRuleDialog, aRuleGroupAffectsNobodyByItself) {
    const auto dialog = onRegion();
    dialog->fields.affected.list.select(2);
    dialog->fields.name.userTyped(u"Rules of students");

    dialog->okButton().userPressed();

    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).entry.affectedId, "");
}

TEST_F(AddRuleDialog, wantsARuleGroupWhereThereIsNone) {
    estate_.groups.clear();
    const auto dialog = onRegion();
    dialog->fields.name.userTyped(u"Rules of students");

    expectRefusal(*dialog, u"Rule group should not be blank!");

    EXPECT_EQ(dialog->focus(), &dialog->fields.object.list);
}

TEST_F(AddRuleDialog, theIndexOfAnAffectedRowIsOneAboveThatOfItsRecord) {
    const auto dialog = inGroup();
    EXPECT_EQ(samples::textsOf(dialog->fields.affected.list), (Names{u"", u"Guests", u"Staff", u"<New>"}));
    EXPECT_EQ(dialog->fields.affected.list.selection(), 0U);
    dialog->fields.name.userTyped(u"Quota");

    dialog->fields.affected.list.userSelected(2);
    dialog->okButton().userPressed();

    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).entry.affectedId, "a2");
    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).entry.affectedName, u"Staff");
}

TEST_F(AddRuleDialog, anEmptyAffectedRowOffersNothingToEditOrDelete) {
    const auto dialog = inGroup();
    auto& affected = dialog->fields.affected;
    affected.list.userSelected(1);
    EXPECT_TRUE(affected.editButton.enabled());
    EXPECT_TRUE(affected.deleteButton.enabled());

    affected.list.userSelected(0);

    EXPECT_FALSE(affected.editButton.enabled());
    EXPECT_FALSE(affected.deleteButton.enabled());
}

TEST_F(AddRuleDialog, editAndDeleteCanBePressedAfterEveryFillingButDoNothingOnTheEmptyRow) {
    const auto dialog = inGroup();
    const auto before = platform_.commands();

    EXPECT_TRUE(dialog->fields.affected.editButton.userPressed());
    EXPECT_TRUE(dialog->fields.affected.deleteButton.userPressed());

    EXPECT_EQ(platform_.commands(), before);
}

TEST_F(AddRuleDialog, aNewPartyIsSelectedOnceItIsMade) {
    const auto dialog = inGroup();
    platform_.ui.expect<AffectedDlg>([this](AffectedDlg& editor) {
        editor.name.userTyped(u"Pupils");
        estate_.affected.push_back(samples::affected("a3", u"Pupils")); // what the server will have
        editor.okButton().userPressed();
    });

    samples::choose(dialog->fields.affected.list, u"<New>");

    EXPECT_EQ(dialog->fields.affected.list.selectedText(), u"Pupils");
    EXPECT_EQ(samples::textsOf(dialog->fields.affected.list), (Names{u"", u"Guests", u"Staff", u"Pupils", u"<New>"}));
}

TEST_F(AddRuleDialog, readsThoseAffectedWhenAPartyIsWrittenAndOnceItsEditorHasGone) {
    const auto dialog = inGroup();
    platform_.ui.expect<AffectedDlg>([](AffectedDlg& editor) {
        editor.name.userTyped(u"Pupils");
        editor.okButton().userPressed();
    });

    samples::choose(dialog->fields.affected.list, u"<New>");

    EXPECT_EQ(platform_.commands(),
              (Strings{"ListAffected", "ListPageLimits", "WriteAffected", "ListAffected", "ListAffected"}));
    EXPECT_EQ(dialog->fields.affected.list.selection(), 0U); // the server has not listed it
}

TEST_F(AddRuleDialog, aCancelledNewPartyLeavesNobodySelected) {
    const auto dialog = inGroup();
    dialog->fields.affected.list.userSelected(1);
    platform_.ui.expect<AffectedDlg>([](AffectedDlg& editor) { editor.cancelButton().userPressed(); });

    samples::choose(dialog->fields.affected.list, u"<New>");

    EXPECT_EQ(dialog->fields.affected.list.selection(), 0U);
}

TEST_F(AddRuleDialog, anEditedPartyStaysSelectedWhateverBecomesOfTheEditing) {
    const auto dialog = inGroup();
    dialog->fields.affected.list.userSelected(1);
    platform_.ui.expect<AffectedDlg>([](AffectedDlg& editor) {
        EXPECT_EQ(editor.name.text(), u"Guests");
        editor.cancelButton().userPressed();
    });

    dialog->fields.affected.editButton.userPressed();

    EXPECT_EQ(dialog->fields.affected.list.selectedText(), u"Guests");
}

TEST_F(AddRuleDialog, deletesAPartyAfterAQuestion) {
    const auto dialog = inGroup();
    dialog->fields.affected.list.userSelected(1);
    platform_.ui.expectBox(platform::Answer::ok, u"Are you sure you want to delete this Affected group?");

    dialog->fields.affected.deleteButton.userPressed();

    EXPECT_EQ(estate_.change<protocol::DeleteAffectedRequest>(1).id, "a1");
    EXPECT_EQ(dialog->fields.affected.list.selection(), 0U);
}

TEST_F(AddRuleDialog, keepsAPartyWhenTheQuestionIsCancelled) {
    const auto dialog = inGroup();
    dialog->fields.affected.list.userSelected(1);
    platform_.ui.expectBox(platform::Answer::cancel);

    dialog->fields.affected.deleteButton.userPressed();

    EXPECT_EQ(estate_.changes(0), Strings{});
    EXPECT_EQ(dialog->fields.affected.list.selection(), 1U);
}

TEST_F(AddRuleDialog, updatesAnEntryThatIsEdited) {
    auto entry = samples::entry("e1", 2, u"Quota");
    entry.targetId = "limit1";
    AddRuleEntryDlg dialog(platform_, AddRuleEntryDlg::Mode::group, place(), entry);
    dialog.open();
    EXPECT_EQ(dialog.fields.name.text(), u"Quota");
    EXPECT_EQ(dialog.fields.type.selectedText(), u"Page limit");
    EXPECT_EQ(dialog.fields.affected.list.selectedText(), u"Staff");
    EXPECT_EQ(dialog.fields.object.list.selectedText(), u"Ten pages");
    dialog.fields.name.userTyped(u"Smaller quota");

    dialog.okButton().userPressed();

    entry.name = u"Smaller quota";
    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).action, 88);
    EXPECT_EQ(estate_.change<protocol::UpdateRuleEntryRequest>(1).entry, entry);
}

TEST_F(AddRuleDialog, readsTheEntriesOfTheOwnerAndThenThoseOfTheParentWhichWin) {
    estate_.entries["g1"] = {samples::entry("e1", 4, u"Of the owner")};
    estate_.entries["parent"] = {samples::entry("e2", 4, u"Of the parent")};
    const auto dialog = inGroup("parent");
    dialog->fields.name.userTyped(u"Quota");

    dialog->okButton().userPressed();

    EXPECT_EQ(platform_.commands(),
              (Strings{"ListAffected", "ListPageLimits", "WriteRuleObject", "ListRuleEntries", "ListRuleEntries"}));
    ASSERT_EQ(entries_.size(), 1U);
    EXPECT_EQ(entries_[0].name, u"Of the parent");
}

TEST_F(AddRuleDialog, readsNoEntriesOfARegionAgain) {
    const auto dialog = onRegion();
    samples::choose(dialog->fields.type, u"Handover");
    dialog->fields.name.userTyped(u"At the desk");

    dialog->okButton().userPressed();

    EXPECT_EQ(platform_.commands(), (Strings{"ListAffected", "ListRuleGroups", "WriteRuleObject"}));
}

TEST_F(AddRuleDialog, sendsNothingOnCancel) {
    const auto dialog = inGroup();
    dialog->fields.name.userTyped(u"Quota");

    dialog->cancelButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idCancel);
    EXPECT_EQ(estate_.changes(0), Strings{});
}

TEST_F(AddRuleDialog, doesNotLoseWhomARuleAffectsWhenThatCouldNotBeRead) {
    estate_.goOffline();
    AddRuleEntryDlg dialog(platform_, AddRuleEntryDlg::Mode::group, place(), samples::entry("e1", 4, u"At the desk"));

    dialog.open();

    EXPECT_EQ(dialog.fields.name.text(), u"At the desk");
    EXPECT_FALSE(dialog.okButton().enabled());
    samples::choose(dialog.fields.type, u"Client billing");
    EXPECT_FALSE(dialog.okButton().enabled());
    dialog.okButton().userPressed();
    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.record().affectedId, "a2");
}

TEST_F(AddRuleDialog, cannotBeConfirmedWithAnotherTypeWhenWhatItPointsAtCouldNotBeRead) {
    protocol::RuleEntryRecord entry;
    entry.type = 3;
    entry.name = u"Prices";
    entry.targetId = "plan1";
    AddRuleEntryDlg dialog(platform_, AddRuleEntryDlg::Mode::place, place(), entry);
    estate_.goOffline();
    dialog.open();
    EXPECT_EQ(platform_.failures().size(), 1U);

    samples::choose(dialog.fields.type, u"Rule group");

    EXPECT_FALSE(dialog.okButton().enabled());
}

TEST_F(AddRuleDialog, canBeConfirmedOnceThoseAffectedAreRead) {
    const auto dialog = inGroup();

    EXPECT_TRUE(dialog->fields.affected.known());
    EXPECT_TRUE(dialog->okButton().enabled());
}

} // namespace
